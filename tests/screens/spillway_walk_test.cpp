// Walks over the spillways in every combination, forward to the end and back, against the rules of the sequence.
#include <gtest/gtest.h>

#include <iostream>

#include "support/aux_desk.h"

namespace kestra {
namespace {

// How a spillway is entered: P or R (profile, rating), and I, S or N (integrity, stability, no analysis).
struct Kind {
  char input;
  char analysis;
};

// A place in the walk: the screen, and the spillway that it shows.
struct Place {
  std::string screen;
  int spillway = 0;
  bool operator==(const Place&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Place& place) {
  const char* shortName = place.screen == "frmAuxSpillwayProfile" ? "profile"
                          : place.screen == "frmAuxRatingTable"   ? "rating"
                                                                  : place.screen.c_str();
  out << shortName;
  const bool aux = place.screen == "frmAuxSpillwayProfile" || place.screen == "frmAuxRatingTable";
  return aux ? out << place.spillway : out;
}

// One row of what each spillway brings on the way there: a rating screen, a profile screen, or both.
struct Rule {
  const char* kind;
  const char* forward;   // screens in their order: r rating, p profile
  const char* backward;  // the same on the way back, for a spillway that is entered from the one behind it
};

// Going back, a rating screen is left for the spillway before; the profile of a rated spillway for its rating.
constexpr Rule kRules[] = {{"PI", "p", "p"}, {"PS", "p", "p"}, {"PN", "p", "p"},
                           {"RI", "rp", ""}, {"RS", "rp", ""}, {"RN", "r", "r"}};

const Rule& ruleOf(const Kind& kind) {
  for (const Rule& rule : kRules) {
    if (rule.kind[0] == kind.input && rule.kind[1] == kind.analysis) return rule;
  }
  return kRules[0];
}

Place placeOf(char letter, int spillway) {
  return {letter == 'p' ? "frmAuxSpillwayProfile" : "frmAuxRatingTable", spillway};
}

bool anyIntegrity(const std::vector<Kind>& kinds) {
  for (const Kind& kind : kinds) {
    if (kind.analysis == 'I') return true;
  }
  return false;
}

std::vector<Place> forwardRoute(const std::vector<Kind>& kinds) {
  std::vector<Place> route;
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    for (const char* letter = ruleOf(kinds[i]).forward; *letter != 0; ++letter) {
      route.push_back(placeOf(*letter, static_cast<int>(i)));
    }
  }
  route.push_back({anyIntegrity(kinds) ? "frmHeadcut" : "frmKestra", 0});
  return route;
}

// From the last screen of a spillway back. A rated spillway with analysis is entered on the profile from a profile
// behind it, and on the rating from a rating behind it.
std::vector<Place> backwardRoute(const std::vector<Kind>& kinds) {
  std::vector<Place> route;
  const int last = static_cast<int>(kinds.size()) - 1;
  char from = ruleOf(kinds.back()).forward[std::string(ruleOf(kinds.back()).forward).size() - 1];
  if (from == 'p' && kinds.back().input == 'R') {
    route.push_back(placeOf('r', last));
    from = 'r';
  }
  for (int i = last - 1; i >= 0; --i) {
    const Kind& kind = kinds[static_cast<std::size_t>(i)];
    std::string screens = ruleOf(kind).backward;
    if (screens.empty()) screens = from == 'p' ? "pr" : "r";
    for (const char letter : screens) route.push_back(placeOf(letter, i));
    from = screens.back();
  }
  route.push_back({"frmAuxSpillways", 0});
  return route;
}

// What the Next button says where the walk has arrived.
std::string nextCaption(const std::vector<Kind>& kinds, const Place& place) {
  if (place.screen != "frmAuxSpillwayProfile") return "&Next Screen";
  const bool last = place.spillway == static_cast<int>(kinds.size()) - 1;
  return last && !anyIntegrity(kinds) ? "&Run Simulation" : "&Next Screen";
}

std::string nameOf(const std::vector<Kind>& kinds) {
  std::string name;
  for (const Kind& kind : kinds) name += std::string(name.empty() ? "" : " ") + kind.input + kind.analysis;
  return name;
}

struct Walker {
  AuxDesk desk;
  const std::vector<Kind>& kinds;
  std::string route;

  explicit Walker(const std::vector<Kind>& kindsGiven) : kinds(kindsGiven) {
    desk.spillways.cmbAuxSpillways.userSelect(std::to_string(kinds.size()));
    for (std::size_t i = 0; i < kinds.size(); ++i) choose(static_cast<int>(i), kinds[i]);
  }

  void choose(int i, const Kind& kind) {
    frmAuxSpillways& screen = desk.spillways;
    screen.txtsway(i).userReplace("label " + std::to_string(i));
    (kind.input == 'P' ? screen.optProfile : screen.optRating)(i).userSelect();
    (kind.analysis == 'I'   ? screen.optQUIL
     : kind.analysis == 'S' ? screen.optStability
                            : screen.optNone)(i)
        .userSelect();
  }

  InputScreen& front() {
    if (desk.spillways.visible()) return desk.spillways;
    if (desk.rating.visible()) return desk.rating;
    return desk.profile;
  }

  Place place() { return {desk.front(), front().visible() ? desk.state.curAuxSpillway : 0}; }

  void expect(const Place& wanted) {
    std::ostringstream step;
    step << " > " << place();
    route += step.str();
    EXPECT_EQ(place(), (Place{wanted.screen, wanted.screen.starts_with("frmAux") ? wanted.spillway : 0})) << route;
    const std::string label = "label " + std::to_string(wanted.spillway);
    if (wanted.screen == "frmAuxSpillwayProfile") expectProfile(wanted, label);
    if (wanted.screen == "frmAuxRatingTable") expectRating(wanted, label);
  }

  void expectProfile(const Place& wanted, const std::string& label) {
    EXPECT_EQ(desk.profile.title(), "Auxiliary Spillway Properties: " + label) << route;
    EXPECT_EQ(desk.profile.cmdNext.caption(), nextCaption(kinds, wanted)) << route;
    EXPECT_EQ(desk.profile.SSTab1.index(), 0) << route;
    EXPECT_EQ(desk.profile.lblNo.caption(), "1") << route;
    // What is entered for a spillway is there again whenever it is shown.
    const std::string mark = std::to_string(wanted.spillway + 1);
    EXPECT_TRUE(desk.profile.txtBottom.text().empty() || desk.profile.txtBottom.text() == mark) << route;
    desk.profile.txtBottom.userReplace(mark);
    EXPECT_TRUE(desk.profile.txtDescript.text().empty() || desk.profile.txtDescript.text() == mark) << route;
    desk.profile.txtDescript.userReplace(mark);
  }

  void expectRating(const Place& wanted, const std::string& label) {
    EXPECT_EQ(desk.rating.title(), "Auxiliary Spillway Rating Table: " + label) << route;
    for (int i = 0; i < kAuxSpillways; ++i) EXPECT_EQ(desk.rating.grdTable(i).visible(), i == wanted.spillway) << route;
  }

  void walk(const std::vector<Place>& places, Button InputScreen::*command) {
    for (const Place& wanted : places) {
      (front().*command).click();
      expect(wanted);
    }
  }
};

void walkThereAndBack(const std::vector<Kind>& kinds) {
  Walker walker(kinds);
  const char* captions[] = {"&Next Screen", "&Next Screen", "&NextScreen"};
  EXPECT_EQ(walker.desk.spillways.cmdNext.caption(), captions[kinds.size() - 1]);
  const std::vector<Place> there = forwardRoute(kinds);
  walker.walk(there, &InputScreen::cmdNext);
  const bool runs = there.back().screen == "frmKestra" && there[there.size() - 2].screen == "frmAuxSpillwayProfile";
  EXPECT_EQ(walker.desk.builds, runs ? 1 : 0) << walker.route;
  walker.desk.host.show(there[there.size() - 2].screen == "frmAuxSpillwayProfile"
                            ? static_cast<Screen&>(walker.desk.profile)
                            : walker.desk.rating);
  walker.route += " ||";
  walker.walk(backwardRoute(kinds), &InputScreen::cmdPrevious);
  EXPECT_EQ(walker.desk.takeBoxes(), (std::vector<std::string>{}));
  std::cout << nameOf(kinds) << walker.route << "\n";
}

std::vector<Kind> combination(int number, int count) {
  std::vector<Kind> kinds;
  for (int i = 0; i < count; ++i, number /= 6) kinds.push_back({number % 6 < 3 ? 'P' : 'R', "ISN"[number % 3]});
  return kinds;
}

TEST(SpillwayWalk, leadsOverOneSpillwayAndBack) {
  for (int n = 0; n < 6; ++n) walkThereAndBack(combination(n, 1));
}

TEST(SpillwayWalk, leadsOverTwoSpillwaysAndBack) {
  for (int n = 0; n < 36; ++n) walkThereAndBack(combination(n, 2));
}

TEST(SpillwayWalk, leadsOverThreeSpillwaysAndBack) {
  for (int n = 0; n < 216; ++n) walkThereAndBack(combination(n, 3));
}

TEST(SpillwayWalk, startsTheRunAtOnceWithoutSpillways) {
  AuxDesk desk;
  desk.state.numAuxSpillways = 2;
  desk.spillways.cmbAuxSpillways.userSelect("0");
  EXPECT_EQ(desk.spillways.cmdNext.caption(), "&Run Simulation");
  desk.spillways.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  EXPECT_EQ(desk.builds, 1);
  EXPECT_EQ(desk.state.numAuxSpillways, 0);
  EXPECT_FALSE(desk.profile.loaded() || desk.rating.loaded());
}

TEST(SpillwayWalk, doesNotLoadTheProfileForASpillwayWithRatingAlone) {
  AuxDesk desk;
  desk.chooseSpillways({"North"});
  desk.spillways.optRating(0).userSelect();
  desk.spillways.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmAuxRatingTable");
  desk.rating.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  EXPECT_EQ(desk.builds, 0);
  EXPECT_FALSE(desk.profile.loaded());
}

TEST(SpillwayWalk, doesNotAskForTheOptionsOfRowsThatAreNotInUse) {
  AuxDesk desk;
  desk.chooseSpillways({"A", "B"});
  desk.spillways.optQUIL(1).userSelect();
  desk.chooseSpillways({"A"});
  desk.spillways.cmdNext.click();
  EXPECT_EQ(desk.profile.cmdNext.caption(), "&Run Simulation");
  desk.profile.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  EXPECT_EQ(desk.builds, 1);
}

TEST(SpillwayWalk, hidesTheInputScreensAtItsEnd) {
  AuxDesk desk;
  desk.openProfile(desk.spillways.optNone(0));
  desk.host.show(desk.rating);
  desk.profile.cmdNext.click();
  EXPECT_FALSE(desk.rating.visible() || desk.profile.visible());
  EXPECT_EQ(desk.front(), "frmKestra");
}

}  // namespace
}  // namespace kestra
