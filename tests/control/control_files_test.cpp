// The files themselves: written whole, compared, refused, read.
#include <gtest/gtest.h>

#include "control/file_names.h"
#include "platform/faulty_file_system.h"
#include "support/control_desk.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

// Screens on a disk that fails on demand.
struct FileDesk : ControlDesk {
  FaultyFileSystem faulty{files};
  Ports faultyPorts{boxes, dialogs, settings, clipboard, processes, faulty, events, beeper, entropy, clock, help};
  ScreenContext faultyContext{faultyPorts, state, host};
  ControlFiles onDisk{screens, faultyContext};

  FileDesk() { files.putDirectory("/p"); }

  void analyse(std::initializer_list<int> spillways) {
    for (const int i : spillways) {
      state.numAuxSpillways = std::max(state.numAuxSpillways, i + 1);
      screens.auxSpillways.optStability(i).setSelected(true);
    }
  }
  bool save(const std::string& path = "/p/dam.KSC") {
    EXPECT_EQ(onDisk.BuildControlText(path), -1);
    return onDisk.WriteControlFiles(path);
  }
  std::string content(const std::string& path) const { return files.content(path).value_or("none"); }
};

TEST(WriteControlFiles, writesTheMainRunAndTheRunsOfTheSpillwaysBehindIt) {
  FileDesk desk;
  desk.analyse({0, 2});
  ASSERT_TRUE(desk.save());
  const ControlTexts& texts = desk.onDisk.texts;
  EXPECT_EQ(desk.content("/p/dam.KSC"), texts.controlText + texts.auxRunText[0] + texts.auxRunText[2]);
  EXPECT_EQ(desk.content("/p/dam.AS1"), texts.auxRunText[0]);
  EXPECT_EQ(desk.content("/p/dam.AS3"), texts.auxRunText[2]);
  EXPECT_FALSE(desk.files.content("/p/dam.AS2"));
  EXPECT_EQ(desk.files.paths(), (Lines{"/p", "/p/dam.AS1", "/p/dam.AS3", "/p/dam.KSC"}));
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST(WriteControlFiles, leavesEmptyLinesOut) {
  FileDesk desk;
  desk.onDisk.texts.controlText = "KESTRA\r\n\r\nENDRUN\r\n";
  ASSERT_TRUE(desk.onDisk.WriteControlFiles("/p/dam.KSC"));
  EXPECT_EQ(desk.content("/p/dam.KSC"), "KESTRA\r\nENDRUN\r\n");
}

TEST(WriteControlFiles, writesNoRunOfASpillwayThatIsNotInUse) {
  FileDesk desk;
  desk.analyse({0, 1});
  ASSERT_TRUE(desk.save());
  desk.state.numAuxSpillways = 1;
  ASSERT_TRUE(desk.save("/p/other.KSC"));
  EXPECT_TRUE(desk.files.content("/p/other.AS1"));
  EXPECT_FALSE(desk.files.content("/p/other.AS2"));
}

// Each step of saving fails in turn: the old file or the new one stands, whole, and no other file is left.
TEST(WriteControlFiles, leaveTheOldFileWholeWhateverFails) {
  FileDesk probe;
  probe.analyse({0});
  probe.save();
  const std::string old = probe.content("/p/dam.KSC");
  probe.screens.projectInformation.txtWatershedID.setText("Mill");
  const std::size_t begin = probe.faulty.calls().size();
  probe.save();
  const std::string next = probe.content("/p/dam.KSC");
  const std::size_t calls = probe.faulty.calls().size() - begin;
  ASSERT_GT(calls, 10U);
  ASSERT_NE(old, next);
  for (std::size_t n = 1; n <= calls; ++n) {
    FileDesk desk;
    desk.analyse({0});
    desk.save();
    desk.screens.projectInformation.txtWatershedID.setText("Mill");
    desk.faulty.failCall(desk.faulty.calls().size() + n, FailureKind::full);
    const bool saved = desk.save();
    const std::string content = desk.content("/p/dam.KSC");
    EXPECT_TRUE(content == old || content == next) << n;
    EXPECT_EQ(desk.files.paths(), (Lines{"/p", "/p/dam.AS1", "/p/dam.KSC"})) << n;
    const Lines told = {"File Error: Unable to generate spillway analysis input file"};
    EXPECT_EQ(desk.takeBoxes(), saved ? Lines() : told) << n;
    EXPECT_TRUE(!saved || content == next) << n;
  }
}

TEST(WriteControlFiles, tellsOfADirectoryThatIsNotThere) {
  FileDesk desk;
  EXPECT_FALSE(desk.save("/nowhere/dam.KSC"));
  ASSERT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(desk.boxes.shown[0].icon, BoxIcon::critical);
  EXPECT_EQ(desk.takeBoxes(), Lines{"File Error: Unable to generate spillway analysis input file"});
}

struct SameCase {
  const char* name;
  std::string a;
  std::string b;
  bool same;
};

void PrintTo(const SameCase& told, std::ostream* out) {
  *out << told.name;
}

class SameControlFiles : public testing::TestWithParam<SameCase> {};

TEST_P(SameControlFiles, areTheSameButForADate) {
  FileDesk desk;
  desk.files.put("/p/a", GetParam().a);
  desk.files.put("/p/b", GetParam().b);
  EXPECT_EQ(desk.onDisk.SameControlFiles("/p/a", "/p/b"), GetParam().same);
}

INSTANTIATE_TEST_SUITE_P(
    Files, SameControlFiles,
    testing::Values(SameCase{"alike", "a\r\nb\r\n", "a\r\nb\r\n", true},
                    SameCase{"lineEndsAside", "a\r\nb\r\n", "a\nb\n", true},
                    SameCase{"anotherLine", "a\r\nb\r\n", "a\r\nc\r\n", false},
                    SameCase{"anotherDate", "a\r\nMODIFIED  1\r\nb\r\n", "a\r\nMODIFIED  2\r\nb\r\n", true},
                    SameCase{"aDateForALine", "a\r\nMODIFIED  1\r\nb\r\n", "a\r\nx\r\nb\r\n", true},
                    SameCase{"aLineForADate", "a\r\nx\r\nb\r\n", "a\r\nMODIFIED  1\r\nb\r\n", false},
                    SameCase{"anEndWithinTheBand", "a\r\n", "a\r\n" + std::string(20, 'x'), true},
                    SameCase{"anEndBeyondTheBand", "a\r\n", "a\r\n" + std::string(21, 'x'), false},
                    SameCase{"anEndBeyondTheBandInTheFirst", "a\r\n" + std::string(21, 'x'), "a\r\n", false},
                    SameCase{"anEmptyFirst", "", "", false}),
    caseName<SameCase>);

TEST(SameControlFilesOnDisk, isFalseWhereOneIsMissing) {
  FileDesk desk;
  desk.files.put("/p/a", "a\r\n");
  EXPECT_FALSE(desk.onDisk.SameControlFiles("/p/a", "/p/b"));
  EXPECT_FALSE(desk.onDisk.SameControlFiles("/p/b", "/p/a"));
}

TEST(ControlFileUnchanged, comparesTheScreensWithTheOpenFileAndLeavesNoTrace) {
  FileDesk desk;
  desk.analyse({0});
  ASSERT_TRUE(desk.save());
  desk.state.currentFile = "/p/dam.KSC";
  const std::vector<std::string> before = desk.files.paths();
  EXPECT_TRUE(desk.onDisk.ControlFileUnchanged());
  desk.profile().txtBottom = "50";
  EXPECT_FALSE(desk.onDisk.ControlFileUnchanged());
  EXPECT_EQ(desk.files.paths(), before);
  desk.state.currentFile = "/p/other.KSC";
  EXPECT_FALSE(desk.onDisk.ControlFileUnchanged());
}

TEST(ReadControlFile, takesTheRunsOfTheFileIntoTheTexts) {
  FileDesk desk;
  desk.onDisk.texts.auxRunText.fill("old");
  desk.files.put("/p/dam.ksc", "KESTRA\nENDRUN\nQUIL\n\n ENDRUN \nHYD\r\n");
  desk.onDisk.ReadControlFile("/p/dam.ksc");
  EXPECT_EQ(desk.onDisk.texts.controlText, "KESTRA\r\nENDRUN\r\n");
  EXPECT_EQ(desk.onDisk.texts.auxRunText[0], "QUIL\r\n\r\n ENDRUN \r\n");
  EXPECT_EQ(desk.onDisk.texts.auxRunText[1], "HYD\r\n");
  EXPECT_EQ(desk.onDisk.texts.auxRunText[2], "");
}

TEST(ReadControlFile, tellsTheLineOfTheFileOfAFaultInTheRunOfASpillway) {
  FileDesk desk;
  std::string text = "KESTRA\n\nENDRUN\nQUIL\nENDRUN\nQUIL\nASSURFACE\n";
  for (int i = 0; i < 101; ++i) text += "          1\n";
  desk.files.put("/p/dam.KSC", text);
  desk.onDisk.ReadControlFile("/p/dam.KSC");
  EXPECT_EQ(desk.takeBoxes(),
            Lines{"File Error: /p/dam.KSC, line 108, record ASSURFACE: more rows than the table holds."});
}

struct RefusedCase {
  const char* name;
  std::string content;
  std::string reason;
};

void PrintTo(const RefusedCase& told, std::ostream* out) {
  *out << told.name;
}

class RefusedFile : public testing::TestWithParam<RefusedCase> {};

TEST_P(RefusedFile, changesNothing) {
  FileDesk desk;
  desk.files.put("/p/dam.KSC", GetParam().content);
  desk.screens.damSurface.txtCrestWidth.setText("12");
  desk.onDisk.texts.controlText = "as it was";
  EXPECT_TRUE(desk.onDisk.checkLoadable("/p/dam.KSC").failedAs(FailureKind::tooLarge));
  desk.onDisk.ReadControlFile("/p/dam.KSC");
  EXPECT_EQ(desk.takeBoxes(),
            Lines{"File Error: /p/dam.KSC cannot be opened as a control file: " + GetParam().reason + "."});
  EXPECT_EQ(desk.onDisk.texts.controlText, "as it was");
  EXPECT_EQ(desk.screens.damSurface.txtCrestWidth.text(), "12");
}

INSTANTIATE_TEST_SUITE_P(
    Files, RefusedFile,
    testing::Values(RefusedCase{"aLongLine", "KESTRA\r\n" + std::string(65537, 'x') + "\r\nENDRUN\r\n",
                                "A line is longer than 64 KiB"},
                    RefusedCase{"aLargeFile", std::string((64U << 20U) + 1, '\n'), "File too large"}),
    caseName<RefusedCase>);

TEST(CheckLoadable, passesALineOf64KiBAndTellsAMissingFileApart) {
  FileDesk desk;
  desk.files.put("/p/dam.KSC", std::string(65536, 'x') + "\r\n");
  EXPECT_TRUE(static_cast<bool>(desk.onDisk.checkLoadable("/p/dam.KSC")));
  EXPECT_TRUE(desk.onDisk.checkLoadable("/p/none.KSC").failedAs(FailureKind::notFound));
}

TEST(ReadControlFile, showsABlankProjectForAFileWithoutKnownRecords) {
  FileDesk desk;
  const std::string blank = desk.build();
  desk.files.put("/p/dam.KSC", std::string("no\0record\r\n\r\n\xFF\xFE\r\n", 17));
  desk.onDisk.ReadControlFile("/p/dam.KSC");
  EXPECT_TRUE(desk.takeBoxes().empty());
  EXPECT_EQ(desk.build(), blank);
}

TEST(CutFields, areNamedWithWhatIsLost) {
  FileDesk desk;
  desk.analyse({0});
  desk.screens.psConduit.txtLengthOfConduit.setText("123456");
  desk.screens.hydrographData.grdTable.setCell(1, 1, "123456.789");
  desk.profile().txtElevation = "12345678901";
  const std::vector<CutField> cuts = desk.onDisk.cutFields();
  ASSERT_EQ(cuts.size(), 3U);
  desk.onDisk.tellCutFields();
  EXPECT_EQ(desk.takeBoxes(),
            Lines{"Warning: These texts are longer than their fields in the control file, which does not hold their "
                  "ends:\r\n\r\nInflow hydrograph, constant time step, discharge 1, row 1: \"123456.789\" loses \"9\""
                  "\r\nPrincipal spillway conduit, length: \"123456\" loses \"6\""
                  "\r\nPool, valley floor: \"12345678901\" loses \"1\""});
}

TEST(CutFields, areCountedBehindTheFirstTwenty) {
  FileDesk desk;
  for (int row = 1; row <= 22; ++row) desk.screens.hydrographData.grdTable.setCell(row, 1, "123456.789");
  desk.onDisk.tellCutFields();
  ASSERT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_TRUE(desk.boxes.shown[0].text.ends_with("row 4: \"123456.789\" loses \"9\"\r\nand 2 more"));
}

TEST(CutFields, areNotToldWhereNothingIsLost) {
  FileDesk desk;
  desk.onDisk.tellCutFields();
  EXPECT_TRUE(desk.takeBoxes().empty());
}

}  // namespace
}  // namespace kestra
