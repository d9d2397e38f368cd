// Random screens are written, read, and written again.
#include <gtest/gtest.h>

#include "support/control_desk.h"
#include "support/random_screens.h"

namespace kestra {
namespace {

constexpr std::uint32_t kRounds = 60;

std::string whole(const ControlTexts& texts) {
  std::string text = texts.controlText;
  for (const std::string& run : texts.auxRunText) text += run;
  return text;
}

struct DiskDesk : ControlDesk {
  explicit DiskDesk(bool project) {
    files.putDirectory("/p");
    if (project) state.projectDir = "/p";
  }
  std::string save() {
    EXPECT_EQ(control.BuildControlText("/p/dam.KSC"), -1);
    EXPECT_TRUE(control.WriteControlFiles("/p/dam.KSC"));
    return whole(control.texts);
  }
  void open() {
    unload();
    control.ReadControlFile("/p/dam.KSC");
    EXPECT_TRUE(takeBoxes().empty());
  }
};

TEST(RandomScreens, thatFitTheirFieldsAreWrittenAgainAsTheyWere) {
  for (std::uint32_t seed = 1; seed <= kRounds; ++seed) {
    DiskDesk desk(false);
    RandomScreens(desk.screens, desk.state, seed, {}).fill();
    const std::string written = desk.save();
    desk.open();
    ASSERT_EQ(desk.save(), written) << seed;
  }
}

TEST(RandomScreens, ofAnyTextsAreWrittenAgainAsTheyWereInAProject) {
  constexpr std::string_view kAlphabet = "0123456789. -\t\"\xC3\xB6\xF6\r\nE";
  for (std::uint32_t seed = 1; seed <= kRounds; ++seed) {
    DiskDesk desk(true);
    RandomScreens(desk.screens, desk.state, seed, {30, kAlphabet, true, true}).fill();
    const std::string written = desk.save();
    desk.open();
    ASSERT_EQ(desk.save(), written) << seed;
  }
}

TEST(RandomScreens, cameBackWithAllThatWasEnteredInAProject) {
  for (std::uint32_t seed = 1; seed <= kRounds; ++seed) {
    DiskDesk desk(true);
    RandomScreens(desk.screens, desk.state, seed, {9, "0123456789.", true, true}).fill();
    desk.screens.psConduit.txtNumOfConduit.setText("1");
    desk.screens.psConduit.txtLengthOfConduit.setText("120");
    desk.save();
    const AuxStore store = desk.screens.context.aux;
    std::vector<std::string> before;
    const auto texts = [&] {
      std::vector<std::string> all;
      for (const Screen* screen : desk.screens.sequence()) {
        for (const Control* control : screen->controls()) {
          const bool shown = screen == &desk.screens.auxSpillwayProfile || control->name() == "txtComments";
          if (!shown && control->kind() == ControlKind::text)
            all.push_back(static_cast<const TextBox*>(control)->text());
        }
      }
      return all;
    };
    before = texts();
    desk.open();
    EXPECT_EQ(texts(), before) << seed;
    for (int i = 0; i < kAuxSpillways; ++i) {
      const auto place = static_cast<std::size_t>(i);
      EXPECT_EQ(desk.profile(i), store.auxProfile[place]) << seed;
      ASSERT_EQ(desk.materials(i).count, store.auxMaterials[place].count) << seed;
      for (int n = 1; n <= desk.materials(i).count + 2; ++n) {
        EXPECT_EQ(desk.materials(i).material(n), store.auxMaterials[place].material(n)) << seed << ", " << n;
      }
    }
  }
}

}  // namespace
}  // namespace kestra
