#include "shell/autosave.h"

#include <gtest/gtest.h>

#include "support/window_desk.h"

namespace kestra {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
constexpr const char* kPond = "/home/dam/pond.KSC";

std::string offered(const std::string& name) {
  return "Unsaved Input: A program that ended without saving has left input for " + name +
         " behind. Do you want it back?\r\n\r\nYes puts it on the screens, where you can look at it before you save. "
         "No throws it away. Cancel keeps it until you open the project again.";
}

struct Autosaving : testing::Test {
  WindowDesk desk;
  Autosave& autosave = desk.shell.autosave;

  Autosaving() {
    autosave.turnOn();
    desk.window.mnuNew.click();
  }
  // Half a second a look, as a window does.
  void wait(double seconds) {
    for (int n = 0; n < static_cast<int>(seconds * 2); ++n) {
      desk.clock.now += kSecond / 2;
      autosave.keep();
    }
  }
  void type(const std::string& title) {
    desk.edit(title);
    autosave.keep();
  }
  std::vector<std::uint64_t> numbers() { return unsavedInputNumbers(desk.files, "/home/dam"); }
  std::string keptTitle(std::uint64_t number = 1) {
    const auto kept = readUnsavedInput(desk.files, "/home/dam", number);
    return kept ? kept->input.file.substr(20, kept->input.file.find("\r\n") - 20) : "nothing";
  }
  // The machine stops: what the program held is gone. Another one opens the project.
  void crash() {
    std::vector<std::pair<std::string, std::string>> kept;
    for (const std::uint64_t number : numbers()) {
      const std::string path = unsavedInputFile("/home/dam", number);
      kept.emplace_back(path, *desk.memory.content(path));
    }
    autosave.turnOff();
    desk.state.fileDirty = false;
    desk.shell.projects.leave();
    for (const auto& [path, text] : kept) desk.memory.put(path, text);
    desk.takeBoxes();
    (void)desk.shell.projects.open("/home/dam");
    autosave.turnOn();
  }
  void offerAnswered(const std::deque<BoxButton>& answers) {
    desk.boxes.answers = answers;
    autosave.offer();
  }
};

TEST_F(Autosaving, keepsWhatWasEditedTwoSecondsAgo) {
  type("Lake");
  wait(1.5);
  EXPECT_TRUE(numbers().empty());
  wait(0.5);
  EXPECT_EQ(keptTitle(), "Lake");
}

TEST_F(Autosaving, keepsWhileTheUserGoesOnTyping) {
  const std::string text = "Larkmoor Farm";
  for (std::size_t size = 1; size <= text.size(); ++size) {
    type(text.substr(0, size));
    wait(0.5);
    const std::string kept = size > 5 ? keptTitle() : text.substr(0, size);
    EXPECT_GE(kept.size() + 5, size) << kept;
  }
}

TEST_F(Autosaving, writesNothingWhileNothingIsEdited) {
  wait(10);
  EXPECT_TRUE(numbers().empty());
  type("Lake");
  wait(2);
  (void)desk.memory.removeFile(unsavedInputFile("/home/dam", 1));
  wait(10);
  EXPECT_TRUE(numbers().empty());
}

TEST_F(Autosaving, isOffUntilItIsTurnedOn) {
  autosave.turnOff();
  type("Lake");
  wait(10);
  EXPECT_TRUE(numbers().empty());
}

TEST_F(Autosaving, writesNothingIntoAProjectOfAnotherProgram) {
  desk.state.projectReadOnly = true;
  type("Lake");
  wait(10);
  autosave.offer();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(desk.memory.content(unsavedInputFile("/home/dam", 1)), std::nullopt);
}

TEST_F(Autosaving, keepsWhatAnUndoBroughtBack) {
  type("Lake");
  wait(2);
  desk.shell.input.projectInformation.mnuUndo.click();
  autosave.keep();
  wait(2);
  EXPECT_EQ(keptTitle(), "");
}

TEST_F(Autosaving, showsNoBoxAndLeavesTheTextsOfTheCommandsAlone) {
  desk.shell.controlFiles.texts.controlText = "as built";
  type("Lake");
  wait(2);
  EXPECT_EQ(keptTitle(), "Lake");
  EXPECT_EQ(desk.shell.controlFiles.texts.controlText, "as built");
  EXPECT_EQ(desk.takeBoxes(), Boxes());
}

TEST_F(Autosaving, leavesNothingBehindOnceTheInputIsSavedOrGivenUp) {
  const auto saves = [this] { desk.saveAs(kPond); };
  const auto begins = [this] {
    desk.boxes.answers = {BoxButton::no};
    desk.window.mnuNew.click();
  };
  const auto leaves = [this] {
    desk.boxes.answers = {BoxButton::no};
    desk.window.mnuExit.click();
  };
  const auto ends = [this] { desk.shell.end(); };
  for (const std::function<void()>& done : std::initializer_list<std::function<void()>>{saves, begins, leaves, ends}) {
    (void)desk.shell.projects.open("/home/dam");
    type("Lake");
    wait(2);
    EXPECT_TRUE(desk.memory.content(unsavedInputFile("/home/dam", 1)));
    desk.takeBoxes();
    done();
    desk.takeBoxes();
    EXPECT_FALSE(desk.memory.content(unsavedInputFile("/home/dam", 1)));
  }
}

TEST_F(Autosaving, keepsTheInputThroughASaveThatFails) {
  type("Lake");
  desk.choose("/home/dam/none/pond.KSC");
  desk.window.mnuSaveAs.setEnabled(true);
  desk.window.mnuSaveAs.click();
  EXPECT_EQ(desk.takeBoxes().size(), 1U);
  EXPECT_EQ(keptTitle(), "Lake");
}

TEST_F(Autosaving, tellsOnceThatNothingCanBeKept) {
  desk.files.failEvery("write", FailureKind::full);
  for (int n = 0; n < 3; ++n) {
    type("Lake");
    wait(2);
    autosave.offer();
  }
  EXPECT_EQ(desk.takeBoxes(), Boxes{"Unsaved Input: What you enter cannot be kept until you save it. "
                                    "/home/dam/.kestra/unsaved-1.json: made to fail."});
}

TEST_F(Autosaving, offersANewFileThatWasLeftBehindAndTakesItBackUnsaved) {
  type("Lake");
  wait(2);
  crash();
  offerAnswered({BoxButton::yes});
  EXPECT_EQ(desk.takeBoxes(), Boxes{offered("a new file")});
  EXPECT_EQ(desk.shownTitle(), "Lake");
  EXPECT_TRUE(desk.state.fileDirty && desk.state.fileIsNew);
  EXPECT_EQ(desk.front(), "frmKestra");
  EXPECT_EQ(numbers(), std::vector<std::uint64_t>{2});
  EXPECT_EQ(keptTitle(2), "Lake");
  autosave.offer();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
}

TEST_F(Autosaving, offersTheInputOfTheFileItBelongsTo) {
  desk.saveAs(kPond);
  const std::string saved = *desk.memory.content(kPond);
  type("Lake");
  wait(2);
  crash();
  offerAnswered({BoxButton::yes});
  EXPECT_EQ(desk.takeBoxes(), Boxes{offered("pond.KSC")});
  EXPECT_EQ(desk.state.currentFile, kPond);
  EXPECT_TRUE(desk.state.fileDirty && desk.state.fileHasName && !desk.state.fileIsNew);
  EXPECT_EQ(desk.shownTitle(), "Lake");
  EXPECT_EQ(*desk.memory.content(kPond), saved);
  desk.boxes.answers = {BoxButton::yes};
  desk.choose(kPond);
  desk.window.mnuSaveAs.click();
  EXPECT_TRUE(numbers().empty());
  EXPECT_EQ(desk.memory.content(kPond)->substr(0, 24), "KESTRA    01/01/2009Lake");
}

TEST_F(Autosaving, bringsBackWhatHasNoPlaceInTheFile) {
  desk.app.host.load(desk.shell.input.damSurface);
  desk.shell.input.projectInformation.txtComments.userReplace("As told by the owner,  1931");
  type(std::string(60, 'x'));
  wait(2);
  crash();
  offerAnswered({BoxButton::yes});
  EXPECT_EQ(desk.shownTitle(), std::string(60, 'x'));
  EXPECT_EQ(desk.shell.input.projectInformation.txtComments.text(), "As told by the owner,  1931\r\n");
}

TEST_F(Autosaving, throwsAwayWhatIsNotWanted) {
  type("Lake");
  wait(2);
  crash();
  offerAnswered({BoxButton::no});
  EXPECT_EQ(desk.shownTitle(), "");
  EXPECT_TRUE(numbers().empty());
}

TEST_F(Autosaving, asksAgainLaterWhereTheUserCannotSay) {
  desk.saveAs(kPond);
  type("Lake");
  wait(2);
  crash();
  offerAnswered({BoxButton::cancel});
  autosave.offer();
  EXPECT_EQ(desk.takeBoxes(), Boxes{offered("pond.KSC")});
  EXPECT_EQ(keptTitle(), "Lake");
  desk.open(kPond);
  offerAnswered({BoxButton::yes});
  EXPECT_EQ(desk.takeBoxes(), Boxes{offered("pond.KSC")});
  EXPECT_EQ(desk.shownTitle(), "Lake");
}

TEST_F(Autosaving, removesWithoutAQuestionWhatWasSavedAfterAll) {
  desk.saveAs(kPond);
  const auto input = desk.shell.controlFiles.savedSnapshot(kPond);
  ASSERT_TRUE(writeUnsavedInput(desk.memory, "/home/dam", 7, {"pond.KSC", *input}));
  crash();
  offerAnswered({});
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_TRUE(numbers().empty());
}

TEST_F(Autosaving, offersTheHighestNumberFirstWhateverTheDates) {
  desk.saveAs(kPond);
  const auto put = [this](std::uint64_t number, const std::string& title) {
    ASSERT_TRUE(writeUnsavedInput(desk.memory, "/home/dam", number,
                                  {"", {"KESTRA    01/01/2009" + title + "\r\nENDRUN\r\n", ""}}));
  };
  put(10, "Ten");
  desk.memory.clockNs += kSecond;
  put(9, "Nine");
  crash();
  offerAnswered({BoxButton::no, BoxButton::yes});
  EXPECT_EQ(desk.takeBoxes().size(), 2U);
  EXPECT_EQ(desk.shownTitle(), "Nine");
}

TEST_F(Autosaving, passesOverWhatItCannotRead) {
  desk.memory.put("/home/dam/.kestra/unsaved-3.json", "{\"of\": \"po");
  crash();
  desk.memory.put("/home/dam/.kestra/unsaved-3.json", "{\"of\": \"po");
  autosave.offer();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  desk.window.mnuNew.click();
  type("Lake");
  wait(2);
  EXPECT_EQ(keptTitle(4), "Lake");
}

TEST_F(Autosaving, isGoneForAFileThatWasSavedInAnotherState) {
  desk.saveAs(kPond);
  type("Lake");
  wait(2);
  crash();
  offerAnswered({BoxButton::cancel});
  desk.takeBoxes();
  desk.open(kPond);
  type("River");
  desk.boxes.answers = {BoxButton::yes};
  desk.choose(kPond);
  desk.window.mnuSaveAs.click();
  desk.takeBoxes();
  EXPECT_TRUE(numbers().empty());
}

}  // namespace
}  // namespace kestra
