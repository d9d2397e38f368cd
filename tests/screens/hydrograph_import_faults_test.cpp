#include <gtest/gtest.h>

#include <algorithm>

#include "screens/hydrograph_files.h"
#include "support/hydrograph_desk.h"

// What the hydrograph screen makes of files that are not as they should be.
namespace kestra {
namespace {

using Texts = std::vector<std::string>;

const std::string kBlanks(20, ' ');
const std::string kBasix = "Storm of June\n----------\n06/01/2001 23:30\t1\n06/02/2001 00:00\t2\n";
const std::string kRivex = "Storm of June\n1\t01Jan2001, 2350\t-\t10\n2\t02Jan2001, 0010\t-\t20\n";
const std::string kVhy = "31\n            2\n 2          6\n 2.5        7\n5\nENDTABLE\n";

// Takes the first entry of a modal list.
struct FirstEntry : ModalLoop {
  void run(Screen& shown) override { static_cast<frmHydrographSelect&>(shown).cmdOK.click(); }
};

struct HydrographImportFaults : testing::Test, HydrographDesk {
  FirstEntry chooser;
  HydrographFiles& menu = screen.files;

  HydrographImportFaults() {
    host.setModalLoop(&chooser);
    files.putDirectory("/p");
    host.show(screen);
    screen.setIncrement("1");
    screen.txtStartTime.setText("7");
    screen.txtTitle.setText("old");
    put(screen.grdTable, 1, {"9", "9", "9", "9"});
    put(screen.varTable, 0, {"9", "9", "9", "9"});
    screen.renumber();
    screen.cmdConvert.takeFocus();
  }
  void import(Menu& command, const std::string& text) {
    files.put("/p/in", text);
    dialogs.files.push_back(Texts{"/p/in"});
    command.click();
  }
  // Increment, start time and title.
  Texts fields() const { return {screen.txtConst.text(), screen.txtStartTime.text(), screen.txtTitle.text()}; }
};

TEST_F(HydrographImportFaults, leaveOutWhatATextImporterDoesBehindItsRows) {
  struct Case {
    Menu& command;
    std::string text;
    const char* box;
    Texts times;
  };
  for (const auto& [command, text, box, times] :
       {Case{menu.mnuImportBasix,
             kBasix + "06/02/2001 xx:00\t3\n",
             "Import BASIX File Error: /p/in, line 5: \"06/02/2001 xx:00\" is no clock time.",
             {"0", "0.5", ""}},
        Case{menu.mnuImportBasix,
             kBasix + "06/02/2001 01:00\t3,5\n",
             "Import BASIX File Error: /p/in, line 5: \"3,5\" is no discharge.",
             {"0", "0.5", ""}},
        Case{menu.mnuImportRivex,
             kRivex + "3\t\t-\t30\n",
             "Import RIVEX File Error: /p/in, line 4 holds no clock time.",
             {"0", "1", ""}},
        Case{menu.mnuImportRivex,
             kRivex + "3\t02Jan2001, 0110\t-\tx\n",
             "Import RIVEX File Error: /p/in, line 4: \"x\" is no discharge.",
             {"0", "1", ""}},
        Case{menu.mnuImportTab,
             "t\tQ\n0\t1\n2\t3\n2,5\t4\n",
             "Import Tab-delimited Text File Error: /p/in, line 4: \"2,5\" is no time.",
             {"0", "2", ""}}}) {
    screen.selectForm(true);
    import(command, text);
    EXPECT_EQ(takeBoxes(), Texts{box});
    EXPECT_EQ(column(screen.varTable, 0, 3), times) << box;
    EXPECT_TRUE(screen.optVariable.selected() && screen.varTable.visible()) << box;
    EXPECT_EQ(fields(), (Texts{"1", "7", "old"})) << box;
    EXPECT_EQ(host.focus(), &screen.cmdConvert) << box;
    EXPECT_FALSE(screen.varTable.rightAligned(0)) << box;
  }
}

TEST_F(HydrographImportFaults, canBeUndone) {
  import(menu.mnuImportTab, "0\t1\n2,5\t4\n");
  EXPECT_EQ(takeBoxes().size(), 1U);
  screen.mnuUndo.click();
  EXPECT_TRUE(screen.optConst.selected());
  EXPECT_EQ(column(screen.varTable, 0, 2), (Texts{"9", "9"}));
}

TEST_F(HydrographImportFaults, doNotComeFromAHeadingOrAMegabyteBehindTheFields) {
  import(menu.mnuImportTab, "Time\tFlow\n0\t5\t" + std::string(1U << 20U, 'x') + "\n");
  EXPECT_TRUE(takeBoxes().empty());
  EXPECT_EQ(column(screen.varTable, 0, 2), (Texts{"0", ""}));
  EXPECT_EQ(column(screen.varTable, 1, 2), (Texts{"5", ""}));
  EXPECT_EQ(screen.txtConst.text(), "");
}

TEST_F(HydrographImportFaults, quoteAMegabyteInPart) {
  import(menu.mnuImportTab, "0\t" + std::string(1U << 20U, 'x') + "\n");
  EXPECT_EQ(takeBoxes(), Texts{"Import Tab-delimited Text File Error: /p/in, line 1: \"" + std::string(40, 'x') +
                               "...\" is no discharge."});
}

TEST_F(HydrographImportFaults, keepTheQt40RowsBeforeThem) {
  screen.selectForm(false);
  import(menu.mnuImportQT40, "INPUT HYDROGRAPH:\nHYD\n" + kBlanks + "1         x\n");
  EXPECT_EQ(takeBoxes(), Texts{"Import QT-40 File Error: /p/in, line 3: \"x\" is no discharge."});
  EXPECT_TRUE(screen.optConst.selected());
  EXPECT_EQ(column(screen.grdTable, 1, 2), (Texts{"1", ""}));
  EXPECT_EQ(column(screen.grdTable, 0, 2), (Texts{"", ""}));
}

TEST_F(HydrographImportFaults, doNotComeFromAQt40IncrementOfZero) {
  import(menu.mnuImportQT40, "INPUT HYDROGRAPH:\nHYD" + std::string(47, ' ') + "0\n" + kBlanks + "1         2\n");
  EXPECT_TRUE(takeBoxes().empty());
  EXPECT_EQ(screen.txtConst.text(), "0");
  EXPECT_EQ(column(screen.grdTable, 0, 2), (Texts{"0         ", "0         "}));
}

TEST_F(HydrographImportFaults, keepTheVhyRowsBeforeThem) {
  struct Case {
    std::string text;
    const char* box;
    Texts flows;
  };
  const std::string head = "31\n            2\n 2          1\n";
  for (const auto& [text, box, flows] :
       {Case{head + " x          2\n", "Import TORVE File Error: /p/in, line 4: \"x\" is no time.", {"1", "", ""}},
        Case{head + " 3          2,5\n",
             "Import TORVE File Error: /p/in, line 4: \"2,5\" is no discharge.",
             {"1", "", ""}},
        Case{head + " 2          2\n",
             "Import TORVE File Error: /p/in, line 4: \"0\" is no time increment above 0.",
             {"1", "2", ""}}}) {
    screen.txtStartTime.setText("7");
    import(menu.mnuImportTorve, text);
    EXPECT_EQ(takeBoxes(), Texts{box});
    EXPECT_EQ(column(screen.grdTable, 1, 3), flows) << box;
    EXPECT_EQ(screen.grdTable.cell(1, 0), "") << box;
    EXPECT_TRUE(screen.optConst.selected()) << box;
    EXPECT_EQ(fields(), (Texts{"1", "2", "old"})) << box;
    EXPECT_EQ(screen.txtDesired.text(), "") << box;
  }
}

TEST_F(HydrographImportFaults, changeNothingWhereAVhyRecordHoldsNoPoints) {
  for (const char* text : {"31\n", "31\nENDTABLE\n33\n", "31\n            2\n5\nENDTABLE\n"}) {
    import(menu.mnuImportTorve, text);
    EXPECT_EQ(takeBoxes(), Texts{"Import TORVE File Error: The record holds no points."});
    EXPECT_EQ(fields(), (Texts{"1", "7", "old"}));
    EXPECT_EQ(screen.grdTable.cell(1, 1), "9");
  }
  import(menu.mnuImportTorve, "31\n            soon\n 2          1\n");
  EXPECT_EQ(takeBoxes(), Texts{"Import TORVE File Error: /p/in, line 2: \"soon\" is no time."});
  EXPECT_EQ(screen.grdTable.cell(1, 1), "9");
}

TEST_F(HydrographImportFaults, keepTheThyRowsBeforeThem) {
  import(menu.mnuImportTorve, "HYD\n" + kBlanks + "0.5\n" + kBlanks + "1         2,5\nENDTABLE\n");
  EXPECT_EQ(takeBoxes(), Texts{"Import TORVE File Error: /p/in, line 3: \"2,5\" is no discharge."});
  EXPECT_EQ(column(screen.grdTable, 1, 2), (Texts{"1", ""}));
  EXPECT_EQ(screen.grdTable.cell(1, 0), "");
  EXPECT_EQ(fields(), (Texts{"0.5", "7", "old"}));
}

TEST_F(HydrographImportFaults, blankAThyIncrementThatIsNotAboveZero) {
  for (const std::string increment : {"0", "0,5"}) {
    import(menu.mnuImportTorve, "HYD\n" + kBlanks + increment + "\n" + kBlanks + "1         2\nENDTABLE\n");
    EXPECT_EQ(takeBoxes(),
              Texts{"Import TORVE File Error: /p/in, line 2: \"" + increment + "\" is no time increment above 0."});
    EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"1", "2", ""}));
    EXPECT_EQ(screen.txtConst.text(), "");
  }
}

TEST_F(HydrographImportFaults, doNotComeFromAThyHeaderThatDoesNotReachTheTitle) {
  import(menu.mnuImportTorve, "HYD\r\n" + kBlanks + "0.5\r\n" + kBlanks + "1\r\nENDTABLE\r\n");
  EXPECT_TRUE(takeBoxes().empty());
  EXPECT_EQ(fields(), (Texts{"0.5", "7", "old"}));
  EXPECT_EQ(screen.grdTable.cell(1, 1), "1");
}

TEST_F(HydrographImportFaults, areToldOfATHYFileWithoutHydrographToo) {
  for (const char* text : {"", "nothing of the kind\n", "HYDROGRAPH\n"}) {
    files.put("/p/in", text);
    menu.LoadHydrographForms("/p/in");
    EXPECT_EQ(takeBoxes(), Texts{"Import TORVE File Error: The file holds no hydrograph."});
    EXPECT_EQ(fields(), (Texts{"1", "7", "old"}));
    EXPECT_EQ(screen.grdTable.cell(1, 1), "9");
  }
}

TEST_F(HydrographImportFaults, doNotComeFromLineEndsOrAByteOrderMark) {
  struct Case {
    Menu& command;
    std::string text;
    const Table& table;
    Texts flows;
  };
  const std::string qt40 = "INPUT HYDROGRAPH:\nHYD\n" + kBlanks + "1         2\n";
  const std::string thy = "HYD\n" + kBlanks + "0.5\n" + kBlanks + "3         4\nENDTABLE\n";
  for (const auto& [command, text, table, flows] :
       {Case{menu.mnuImportBasix, kBasix, screen.varTable, {"1", "2", ""}},
        Case{menu.mnuImportRivex, kRivex, screen.varTable, {"10", "20", ""}},
        Case{menu.mnuImportTab, "0\t5\n1\t6\n", screen.varTable, {"5", "6", ""}},
        Case{menu.mnuImportQT40, qt40, screen.grdTable, {"1", "2", ""}},
        Case{menu.mnuImportTorve, kVhy, screen.grdTable, {"6", "7", ""}},
        Case{menu.mnuImportTorve, thy, screen.grdTable, {"3", "4", ""}}}) {
    for (const std::string end : {"\n", "\r\n", "\r", "\r\r\n"}) {
      std::string changed = "\xEF\xBB\xBF";
      for (const char c : text) changed += c == '\n' ? end : std::string(1, c);
      import(command, changed);
      EXPECT_EQ(takeBoxes(), Texts());
      EXPECT_EQ(column(table, 1, 3), flows) << text;
    }
  }
}

TEST_F(HydrographImportFaults, areToldOfFilesThatEndBeforeTheirData) {
  struct Case {
    Menu& command;
    std::string text;
    const char* box;
  };
  for (const auto& [command, text, box] :
       {Case{menu.mnuImportBasix, "Storm\n----------\n", "Import BASIX File Error: The file holds no hydrograph."},
        Case{menu.mnuImportBasix, "Storm\n----------\n\n \n", "Import BASIX File Error: The file holds no hydrograph."},
        Case{menu.mnuImportQT40, "INPUT HYDROGRAPH:\nHYD       STORM\n",
             "Import QT-40 File Error: The record holds no points."}}) {
    import(command, text);
    EXPECT_EQ(takeBoxes(), Texts{box});
    EXPECT_EQ(fields(), (Texts{"1", "7", "old"}));
    EXPECT_EQ(screen.grdTable.cell(1, 1) + screen.varTable.cell(1, 0), "99");
    EXPECT_TRUE(screen.optConst.selected());
  }
}

std::string repeated(const std::string& line, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += line;
  return text;
}

// Lines that begin with 0, 1, ..., each with blanks up to `width`.
std::string numbered(const std::string& before, std::size_t width, const std::string& behind, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) {
    std::string number = std::to_string(i);
    number.resize(std::max(width, number.size()), ' ');
    text += before + number + behind;
  }
  return text;
}

TEST_F(HydrographImportFaults, areToldOfPointsThatTheTableDoesNotTake) {
  struct Case {
    Menu& command;
    std::string text;
    std::string more;  // one point
    const char* title;
  };
  const std::string five = kBlanks + "1         2         3         4         5\n";
  const std::string basix = repeated("06/01/2001 23:30\t1\n", 5000);
  const std::string rivex = repeated("1\t01Jan2001, 2350\t-\t10\n", 5000);
  for (const auto& [command, text, more, title] :
       {Case{menu.mnuImportBasix, "Storm\n----------\n" + basix, "06/01/2001 23:30\t1\n\n", "Import BASIX"},
        Case{menu.mnuImportRivex, "Storm\n" + rivex, "1\t01Jan2001, 2350\t-\t10\n\n", "Import RIVEX"},
        Case{menu.mnuImportTab, numbered("", 0, "\t1\n", 5000), "5000\t1\n\n", "Import Tab-delimited Text"},
        Case{menu.mnuImportQT40, "INPUT HYDROGRAPH:\nHYD\n" + repeated(five, 1000), kBlanks + "1\n", "Import QT-40"},
        Case{menu.mnuImportTorve, "HYD\n\n" + repeated(five, 1000), kBlanks + "1\n", "Import TORVE"},
        Case{menu.mnuImportTorve, "31\n            0\n" + numbered(" ", 11, "1\n", 5000),
             " 5000       1\n5\nENDTABLE\n", "Import TORVE"}}) {
    import(command, text);
    EXPECT_EQ(takeBoxes(), Texts()) << title;
    import(command, text + more);
    EXPECT_EQ(takeBoxes(), Texts{std::string(title) +
                                 " File Error: The file holds 5001 points, of which the first 5000 were taken."});
    EXPECT_EQ(lastFilled(screen.optConst.selected() ? screen.grdTable : screen.varTable), 5000) << title;
  }
}

TEST_F(HydrographImportFaults, areToldOfRowsWithoutAnyDischargeWhichChangeNothing) {
  struct Case {
    Menu& command;
    std::string text;
    const char* box;
  };
  for (const auto& [command, text, box] :
       {Case{menu.mnuImportBasix, "Storm\n----------\n06/01/2001 23:30\n06/01/2001 23:45\t \n",
             "Import BASIX File Error: The file holds no hydrograph."},
        Case{menu.mnuImportRivex, "Storm\n1\t01Jan2001, 2350\n2\t02Jan2001, 0010\t-\n",
             "Import RIVEX File Error: The file holds no hydrograph."},
        Case{menu.mnuImportTorve, "31\n            2\n 2\n 2.5\n5\nENDTABLE\n",
             "Import TORVE File Error: The record holds no points."}}) {
    import(command, text);
    EXPECT_EQ(takeBoxes(), Texts{box});
    EXPECT_EQ(fields(), (Texts{"1", "7", "old"})) << box;
    EXPECT_EQ(screen.grdTable.cell(1, 1) + screen.varTable.cell(1, 0), "99") << box;
    EXPECT_TRUE(screen.optConst.selected()) << box;
  }
}

TEST_F(HydrographImportFaults, areToldOfATextWithoutRowsWhichEmptiesTheTable) {
  for (const char* text : {"", "\n\n", "Time\tFlow\n", "\t\n"}) {
    screen.selectForm(true);
    put(screen.varTable, 0, {"9"});
    import(menu.mnuImportTab, text);
    EXPECT_EQ(takeBoxes(), Texts{"Import Tab-delimited Text File Error: The file holds no hydrograph."});
    EXPECT_EQ(screen.varTable.cell(1, 0), "");
    EXPECT_TRUE(screen.optVariable.selected());
    EXPECT_EQ(screen.txtConst.text(), "");
  }
}

TEST_F(HydrographImportFaults, areToldOfATHYFileWithoutPointsWhichEmptiesTheTable) {
  for (const std::string text : {"HYD\n", "HYD\n                    0.5\nENDTABLE\n"}) {
    import(menu.mnuImportTorve, text);
    EXPECT_EQ(takeBoxes(), Texts{"Import TORVE File Error: The record holds no points."});
    EXPECT_EQ(screen.grdTable.cell(1, 1), "");
    EXPECT_EQ(screen.txtConst.text(), text.size() > 5 ? "0.5" : "");
  }
}

}  // namespace
}  // namespace kestra
