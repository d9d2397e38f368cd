#include <gtest/gtest.h>

#include "support/window_desk.h"

namespace kestra {
namespace {

constexpr const char* kQuestion = "Warning: Do you want to save changes before opening another file?";
using Started = std::vector<std::string>;

std::string textOf(const std::string& title) {
  return "KESTRA    01/01/2009" + title + "\r\nENDRUN\r\n";
}

struct EveryFile : testing::Test {
  WindowDesk desk;
  std::vector<std::string> seen;  // title and file of the input window at each build

  EveryFile() {
    desk.memory.put("/home/dam/b.KSC", textOf("B"));
    desk.memory.put("/home/dam/a.ksc", textOf("A"));
    desk.memory.put("/home/dam/a.OUT", "");
    desk.memory.put("/home/dam/deep/c.KSC", textOf("C"));
    desk.runs.onBuild = [this] { seen.push_back(desk.window.title() + " " + desk.shownTitle()); };
  }
};

struct RebuildAll : EveryFile {};
struct ConvertAll : EveryFile {};

TEST_F(RebuildAll, loadsAndBuildsEveryControlFileOfTheProject) {
  desk.window.mnuRebuildAll.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(desk.runs.started, (Started{"/home/dam/a.ksc", "/home/dam/b.KSC"}));
  EXPECT_EQ(desk.runs.progressShown, (std::vector<bool>{false, false}));
  EXPECT_EQ(seen, (Started{"Kestra B ( /home/dam/a.ksc ) A", "Kestra B ( /home/dam/b.KSC ) B"}));
  EXPECT_EQ(desk.state.currentFile, "/home/dam/b.KSC");
  EXPECT_EQ(desk.front(), "frmKestra");
  EXPECT_FALSE(desk.shell.progress.loaded());
  EXPECT_EQ(desk.memory.currentDirectory(), "/home/dam");
}

TEST_F(RebuildAll, countsTheFilesOnTheProgressScreen) {
  std::vector<std::string> shown;
  desk.events.onPump = [&] {
    const frmProgress& progress = desk.shell.progress;
    shown.push_back(progress.lblWhat.caption() + " " + std::to_string(static_cast<int>(progress.Gauge.value())) + "/" +
                    std::to_string(static_cast<int>(progress.Gauge.maximum())));
  };
  desk.window.mnuRebuildAll.click();
  EXPECT_EQ(shown, (Started{" 0/2", "a.ksc 0/2", "a.ksc 1/2", "b.KSC 1/2", "b.KSC 2/2"}));
}

TEST_F(RebuildAll, goesOnAfterAFailureAndTellsOfItAtTheEnd) {
  desk.runs.failing = "/home/dam/a.ksc";
  desk.memory.put("/home/dam/long.KSC", "KESTRA\r\n" + std::string(65537, 'x'));
  const std::string why = desk.shell.controlFiles.checkLoadable("/home/dam/long.KSC").failure().reason;
  desk.window.mnuRebuildAll.click();
  EXPECT_EQ(desk.runs.started, (Started{"/home/dam/a.ksc", "/home/dam/b.KSC"}));
  EXPECT_EQ(desk.takeBoxes(),
            Boxes{"Rebuild All: These files could not be rebuilt:\r\n\r\na.ksc: no output\r\nlong.KSC: " + why});
}

TEST_F(RebuildAll, endsBetweenTwoFilesWhenItIsStopped) {
  desk.runs.onBuild = [this] { desk.shell.progress.cmdStop.click(); };
  desk.window.mnuRebuildAll.click();
  EXPECT_EQ(desk.runs.started, Started{"/home/dam/a.ksc"});
  EXPECT_FALSE(desk.shell.progress.loaded());
}

TEST_F(RebuildAll, ofAProjectWithoutFilesDoesNothing) {
  for (const char* name : {"/home/dam/a.ksc", "/home/dam/b.KSC"}) (void)desk.memory.removeFile(name);
  desk.window.mnuRebuildAll.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(desk.front(), "frmKestra");
}

TEST_F(RebuildAll, asksBeforeItClearsWhatWasEdited) {
  desk.edit("Typed");
  desk.boxes.answers = {BoxButton::yes};
  desk.cancelDialog();
  desk.window.mnuRebuildAll.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kQuestion});
  EXPECT_EQ(desk.runs.started, Started());
  EXPECT_EQ(desk.shownTitle(), "Typed");
}

TEST_F(RebuildAll, saysWhatIsMissingBeforeItClearsAnything) {
  desk.shell.fileDesk.runs = nullptr;
  desk.shell.input.projectInformation.txtWatershedID.setText("kept");
  desk.window.mnuRebuildAll.click();
  EXPECT_EQ(desk.takeBoxes().size(), 1U);
  EXPECT_EQ(desk.shownTitle(), "kept");
}

TEST_F(ConvertAll, writesEveryControlFileAnewIntoADirectoryOfTheProject) {
  desk.window.mnuConvertAll.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  for (const auto& [name, title] : {std::pair{"aP.v2c", "A"}, {"bP.v2c", "B"}}) {
    const std::string text = desk.memory.content(std::string("/home/dam/New/") + name).value_or("");
    EXPECT_EQ(text, textOf(title));
  }
  EXPECT_EQ(desk.memory.content("/home/dam/a.ksc"), textOf("A"));
  EXPECT_EQ(desk.window.title(), "KESTRA B ( Converting /home/dam/b.KSC )");
  EXPECT_FALSE(desk.shell.progress.loaded());
  EXPECT_EQ(desk.runs.started, Started());
}

TEST_F(ConvertAll, writesTheRunOfTheFirstSpillwayAnew) {
  frmAuxSpillways& spillways = desk.shell.input.auxSpillways;
  desk.window.mnuNew.click();
  desk.app.host.show(spillways);
  spillways.cmbAuxSpillways.userSelect("1");
  spillways.txtsway(0).userReplace("North");
  spillways.optQUIL(0).userSelect();
  spillways.cmdNext.click();
  desk.shell.input.auxSpillwayProfile.cmdHome.click();
  desk.saveAs("/home/dam/spill.KSC");
  desk.window.mnuConvertAll.click();
  const std::string text = desk.memory.content("/home/dam/New/spillP.v2c").value_or("");
  const std::string run = desk.memory.content("/home/dam/New/spillP.AS1").value_or("");
  EXPECT_FALSE(run.empty());
  EXPECT_TRUE(text.ends_with(run));
  EXPECT_EQ(run.substr(0, 4), desk.memory.content("/home/dam/spill.AS1").value_or("").substr(0, 4));
}

TEST_F(ConvertAll, mayBeRunAgain) {
  desk.window.mnuConvertAll.click();
  desk.window.mnuConvertAll.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
}

TEST_F(ConvertAll, refusesANameWithoutExtension) {
  EXPECT_FALSE(desk.shell.commands.rebuild.convert("/home/dam/a"));
  EXPECT_EQ(desk.boxes.shown[0].icon, BoxIcon::critical);
  EXPECT_EQ(desk.takeBoxes(), Boxes{"Error: Illegal FileName. File Name must end with .V2C extension"});
}

TEST_F(ConvertAll, saysWhyItsDirectoryCannotBeMade) {
  desk.memory.put("/home/dam/New", "a file");
  desk.window.mnuConvertAll.click();
  const Boxes told = desk.takeBoxes();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_TRUE(told[0].starts_with("Convert All: Unable to make the directory /home/dam/New: ")) << told[0];
}

TEST(ConvertedPath, standsInTheDirectoryNewUnderTheBaseName) {
  EXPECT_EQ(convertedPath("/p/dam.KSC"), "/p/New/damP.v2c");
  EXPECT_EQ(convertedPath("/p/a.b.ksc"), "/p/New/a.bP.v2c");
  EXPECT_EQ(convertedPath("/p.q/dam"), std::nullopt);
}

}  // namespace
}  // namespace kestra
