// Files that are none, or only half of one: they are taken in as far as they go.
#include <gtest/gtest.h>

#include "support/control_desk.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kPath = "/p/dam.KSC";

struct BadControlFile : testing::Test {
  // Opens the bytes as a file; gives the boxes.
  static Lines open(ControlDesk& desk, const std::string& bytes) {
    desk.unload();
    desk.files.put(kPath, bytes);
    desk.control.ReadControlFile(kPath);
    return desk.takeBoxes();
  }
  // A file with every kind of table, and the run of a spillway.
  static std::string wholeFile() {
    ControlDesk desk;
    desk.files.putDirectory("/p");
    desk.state.numAuxSpillways = 2;
    desk.screens.auxSpillways.optQUIL(0).setSelected(true);
    desk.screens.auxSpillways.optRating(1).setSelected(true);
    desk.screens.psType.optTwoRec.setSelected(true);
    desk.profile().points[0] = {"0", "110"};
    desk.profile().reaches[0] = {"0", "100", "5.6", "0.8", "1", "2"};
    desk.materials().add();
    desk.materials().material(1).points = {{"0", "105"}};
    for (int row = 1; row <= 3; ++row) {
      for (Table* table : {&desk.screens.structureTable.grdTable, &desk.screens.psRatingTable.grdTable,
                           &desk.screens.auxRatingTable.grdTable(1), &desk.screens.hydrographData.grdTable}) {
        table->setCell(row, 1, std::to_string(100 + row));
        if (table != &desk.screens.structureTable.grdTable) table->setCell(row, 2, "5");
      }
    }
    desk.screens.projectInformation.txtComments.setText("Zoned.\r\nBuilt 1931.");
    EXPECT_EQ(desk.control.BuildControlText(kPath), -1);
    EXPECT_TRUE(desk.control.WriteControlFiles(kPath));
    return desk.files.content(kPath).value_or("");
  }
};

TEST_F(BadControlFile, mayBeCutAnywhere) {
  const std::string whole = wholeFile();
  ASSERT_GT(whole.size(), 1500U);
  ControlDesk desk;
  for (std::size_t size = 0; size <= whole.size(); size += 3) {
    EXPECT_EQ(open(desk, whole.substr(0, size)), Lines()) << size;
  }
}

TEST_F(BadControlFile, mayHoldItsLinesTwice) {
  std::string twice;
  for (const std::string& line : linesOf(wholeFile())) twice += line + "\r\n" + line + "\r\n";
  ControlDesk desk;
  EXPECT_EQ(open(desk, twice), Lines());
  EXPECT_EQ(desk.screens.structureTable.grdTable.cell(1, 1), "");  // the record that is there twice has no rows
}

TEST_F(BadControlFile, mayHoldItsRecordsTwiceTheLastOfWhichCounts) {
  ControlDesk desk;
  EXPECT_EQ(
      open(desk,
           "UPSTREAM  1\nUPSTREAM  2\nCRESTPRFL\n          1         2\nENDTABLE\nCRESTPRFL\n          3         4\n"),
      Lines());
  EXPECT_EQ(desk.screens.damSurface.txtUpSlope.text(), "2");
  EXPECT_EQ(desk.screens.damSurface.grdTable.cell(1, 1), "3");
}

TEST_F(BadControlFile, mayEndInATable) {
  ControlDesk desk;
  for (const char* record : {"HYD", "STRUCTURE", "CRESTPRFL", "TAILWATER", "ASSURFACE", "ASRATING", "TEMPLATE"}) {
    EXPECT_EQ(open(desk, std::string(record) + "\n          1         2         3"), Lines()) << record;
  }
}

TEST_F(BadControlFile, keepsNumbersThatAreNoneAsTheyWereTyped) {
  ControlDesk desk;
  EXPECT_EQ(open(desk, "HCMODEL   1e999     9\nUPSTREAM  1e999     -1,5\nASSURFACE 1e999\nHYD       t         1e999"),
            Lines());
  EXPECT_EQ(desk.screens.damSurface.txtUpSlope.text(), "1e999");
  EXPECT_EQ(desk.screens.damSurface.txtUpRCI.text(), "-1,5");
  EXPECT_EQ(desk.screens.properties.txtBulkDensity.text(), "");  // no model of that number
  EXPECT_EQ(desk.state.numAuxSpillways, 1);
}

TEST_F(BadControlFile, passesBytesOfOtherEncodingsThroughTheirColumns) {
  const Lines names = {"D\xC4MME", std::string("a\0b", 3), "\xFF\xFE\x80"};
  for (const std::string& name : names) {
    ControlDesk desk;
    EXPECT_EQ(open(desk, "KESTRA    01/01/2009" + name + "\r\nDAMCREST  12\r\n"), Lines());
    EXPECT_EQ(desk.screens.projectInformation.txtWatershedID.text(), name);
    EXPECT_EQ(desk.build().substr(0, 22 + name.size()), "KESTRA    01/01/2009" + name + "\r\n");
  }
}

TEST_F(BadControlFile, givesABlankProjectInAnEncodingOfTwoBytes) {
  ControlDesk desk;
  const std::string blank = desk.build();
  std::string wide = "\xFF\xFE";
  for (const char c : std::string("KESTRA    01/01/2009Dam\r\nUPSTREAM  3\r\n")) wide += {c, '\0'};
  EXPECT_EQ(open(desk, wide), Lines());
  EXPECT_EQ(desk.build(), blank);
}

}  // namespace
}  // namespace kestra
