#include "shell/run_inputs.h"

#include <gtest/gtest.h>

#include "results/input_digest.h"
#include "support/window_desk.h"

namespace kestra {
namespace {

constexpr const char* kPond = "/home/dam/pond.KSC";
constexpr const char* kCaption = "Graphics [ /home/dam/pond.KSC ]";
constexpr const char* kChanged = "Graphics [ /home/dam/pond.KSC ] - input changed since this run";

// A file that was saved and run, its graphs on show.
struct GraphCaption : testing::Test {
  WindowDesk desk;
  frmOutputGraph& graphs = desk.shell.graphs.output;

  GraphCaption() {
    desk.window.mnuNew.click();
    desk.edit("Pond");
    desk.saveAs(kPond);
    (void)keepInputDigest(desk.files, kPond);
    graphs.OpenFile(kPond);
    desk.takeBoxes();
  }
  void save() {
    desk.boxes.answers = {BoxButton::yes};
    desk.choose(kPond);
    desk.window.mnuSaveAs.click();
  }
};

TEST_F(GraphCaption, isTheFileAsLongAsTheInputIsThatOfTheRun) {
  EXPECT_EQ(graphs.title(), kCaption);
}

TEST_F(GraphCaption, saysThatTheScreensWereEditedAndTakesItBackWithAnUndo) {
  desk.edit("Lake");
  EXPECT_EQ(graphs.title(), kChanged);
  desk.shell.input.projectInformation.mnuUndo.click();
  EXPECT_EQ(graphs.title(), kCaption);
  desk.shell.input.projectInformation.mnuRedo.click();
  EXPECT_EQ(graphs.title(), kChanged);
}

TEST_F(GraphCaption, saysThatTheFileWasSavedInAnotherStateUntilItIsRun) {
  desk.edit("Lake");
  save();
  EXPECT_EQ(graphs.title(), kChanged);
  (void)keepInputDigest(desk.files, kPond);
  graphs.GetGraphToOpen();
  EXPECT_EQ(graphs.title(), kCaption);
}

TEST_F(GraphCaption, saysThatAnotherProgramHasChangedTheFile) {
  desk.memory.put(kPond, "KESTRA\r\nENDRUN\r\n");
  graphs.GetGraphToOpen();
  EXPECT_EQ(graphs.title(), kChanged);
}

TEST_F(GraphCaption, ofASpillwayGoesByTheFileOfItsDam) {
  graphs.OpenFile("/home/dam/pond/pond1_0.V2D", true);
  EXPECT_EQ(graphs.title(), "Graphics [ /home/dam/pond/pond1_0.V2D ]");
  desk.edit("Lake");
  EXPECT_EQ(graphs.title(), "Graphics [ /home/dam/pond/pond1_0.V2D ] - input changed since this run");
}

TEST_F(GraphCaption, saysNothingOfAnotherFileOrOfARunWithoutADigest) {
  desk.memory.put("/home/dam/lake.KSC", "KESTRA\r\nENDRUN\r\n");
  (void)keepInputDigest(desk.files, "/home/dam/lake.KSC");
  graphs.OpenFile("/home/dam/lake.KSC");
  desk.edit("Lake");
  EXPECT_EQ(graphs.title(), "Graphics [ /home/dam/lake.KSC ]");
  dropInputDigest(desk.files, kPond);
  graphs.OpenFile(kPond);
  EXPECT_EQ(graphs.title(), kCaption);
}

}  // namespace
}  // namespace kestra
