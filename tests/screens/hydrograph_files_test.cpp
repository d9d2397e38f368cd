#include "screens/hydrograph_files.h"

#include <gtest/gtest.h>

#include "support/hydrograph_desk.h"

namespace kestra {
namespace {

using Texts = std::vector<std::string>;

const std::string kBlanks(20, ' ');
const std::string kBasix = "Storm of June\n----------\n06/01/2001 23:30\t1\n06/02/2001 00:00\t2\n";
const std::string kRivex = "Storm of June\n1\t01Jan2001, 2350\t-\t10\n2\t02Jan2001, 0010\t-\t20\n";

// Chooses an entry of a modal list and clicks OK, or closes it when the index is negative.
struct Chooser : ModalLoop {
  int index = 0;
  int runs = 0;
  Texts items;

  void run(Screen& shown) override {
    ++runs;
    auto& select = static_cast<frmHydrographSelect&>(shown);
    items = select.List1.items();
    if (index < 0) return;
    select.List1.userSelect(index);
    select.cmdOK.click();
  }
};

struct HydrographFilesOnScreen : testing::Test, HydrographDesk {
  Chooser chooser;
  HydrographFiles& menu = screen.files;

  HydrographFilesOnScreen() {
    host.setModalLoop(&chooser);
    state.projectDir = "/p";
    files.putDirectory("/p");
    host.show(screen);
  }
  void choose(const std::string& path) { dialogs.files.push_back(std::vector<std::string>{path}); }
  void import(Menu& command, const std::string& text) {
    files.put("/p/in", text);
    choose("/p/in");
    command.click();
  }
};

TEST_F(HydrographFilesOnScreen, haveTheirCaptionsAndDialogs) {
  struct Case {
    Menu& command;
    const char* caption;
    const char* filter;
  };
  const char* text = "All Files (*.*)|*.*| Text Files (*.txt)|*.txt";
  for (const auto& [command, caption, filter] :
       {Case{menu.mnuImportBasix, "Import BASIX", text}, Case{menu.mnuImportRivex, "Import RIVEX", text},
        Case{menu.mnuImportTorve, "Import TORVE", "All Files (*.*)|*.*| Hydrograph Files (*.VHY)|*.VHY"},
        Case{menu.mnuImportQT40, "Import QT-40", text}, Case{menu.mnuImportTab, "ImportTab-delimited Text", text}}) {
    EXPECT_EQ(command.caption(), caption);
    command.click();
    EXPECT_EQ(takeBoxes(), Texts());
    EXPECT_EQ(dialogs.shownFiles.back().title, "Open File");
    EXPECT_EQ(dialogs.shownFiles.back().filter, filter);
    EXPECT_EQ(dialogs.shownFiles.back().filterIndex, 2);
    choose("");
    command.click();
    EXPECT_EQ(takeBoxes(), Texts{"Open File: No filename provided."});
  }
  EXPECT_EQ(history.steps(), 0U);
}

TEST_F(HydrographFilesOnScreen, sayWhichFileCannotBeReadAndChangeNothing) {
  put(screen.varTable, 0, {"7"});
  struct Case {
    Menu& command;
    const char* title;
  };
  for (const auto& [command, title] :
       {Case{menu.mnuImportBasix, "Import BASIX File Error"}, Case{menu.mnuImportRivex, "Import RIVEX File Error"},
        Case{menu.mnuImportTorve, "Import TORVE File Error"}, Case{menu.mnuImportQT40, "Import QT-40 File Error"},
        Case{menu.mnuImportTab, "Import Tab-delimited Text File Error"}}) {
    choose("/p/none");
    command.click();
    EXPECT_EQ(takeBoxes(), Texts{std::string(title) + ": /p/none: No such file or directory"});
  }
  EXPECT_EQ(screen.varTable.cell(1, 0), "7");
  EXPECT_TRUE(screen.optConst.selected());
}

TEST_F(HydrographFilesOnScreen, importBasixAsVariableTime) {
  put(screen.varTable, 0, {"9", "9", "9"});
  screen.txtConst.setText("1");
  import(menu.mnuImportBasix, kBasix);
  EXPECT_TRUE(screen.optVariable.selected() && screen.varTable.visible());
  EXPECT_FALSE(screen.grdTable.visible());
  EXPECT_EQ(screen.cmdConvert.caption(), "Convert from Variable Time to Constant Time");
  EXPECT_EQ(column(screen.varTable, 0, 3), (Texts{"0", "0.5", ""}));
  EXPECT_EQ(column(screen.varTable, 1, 3), (Texts{"1", "2", ""}));
  EXPECT_TRUE(screen.varTable.rightAligned(0) && screen.varTable.rightAligned(1));
  EXPECT_EQ(screen.txtStartTime.text(), "0.0");
  EXPECT_EQ(screen.txtConst.text(), "");
  EXPECT_EQ(screen.txtTitle.text(), "Storm of June");
  EXPECT_EQ(host.focus(), &screen.txtTitle);
  EXPECT_TRUE(state.fileDirty);
  screen.mnuUndo.click();
  EXPECT_TRUE(screen.optConst.selected());
  EXPECT_EQ(screen.txtConst.text(), "1");
  EXPECT_EQ(column(screen.varTable, 0, 3), (Texts{"9", "9", "9"}));
}

TEST_F(HydrographFilesOnScreen, importRivexAsVariableTime) {
  import(menu.mnuImportRivex, kRivex);
  EXPECT_EQ(column(screen.varTable, 0, 3), (Texts{"0", "1", ""}));
  EXPECT_EQ(column(screen.varTable, 1, 2), (Texts{"10", "20"}));
  EXPECT_EQ(screen.txtTitle.text(), "Storm of June");
}

TEST_F(HydrographFilesOnScreen, refuseATableWithoutData) {
  put(screen.varTable, 0, {"7"});
  for (Menu* command : {&menu.mnuImportBasix, &menu.mnuImportRivex}) {
    for (const char* text : {"", "title\n", "\xff\xfe\x01", "title\rwith\rcarriage\rreturns"}) {
      import(*command, text);
      EXPECT_EQ(takeBoxes(), Texts{"File Import Error: Invalid tab-delimited Rivex File"});
    }
  }
  EXPECT_EQ(screen.varTable.cell(1, 0), "7");
  EXPECT_TRUE(screen.optConst.selected());
}

TEST_F(HydrographFilesOnScreen, importFiveThousandTabDelimitedLines) {
  std::string text;
  for (int i = 0; i < 5010; ++i) text += std::to_string(i) + "\t" + std::to_string(i + 1) + "\r\n";
  screen.txtConst.setText("1");
  screen.txtTitle.setText("kept");
  import(menu.mnuImportTab, text);
  EXPECT_EQ(lastFilled(screen.varTable), 5000);
  EXPECT_EQ(screen.varTable.cell(5000, 0), "4999");
  EXPECT_EQ(screen.txtConst.text(), "");
  EXPECT_EQ(screen.txtTitle.text(), "kept");
  EXPECT_TRUE(screen.optVariable.selected());
}

const std::string kQt40 = "INPUT HYDROGRAPH:\nHYD       STORM A                       1.5       0.25\n" + kBlanks +
                          "1         2\nPEAK\nINPUT HYDROGRAPH:\nHYD       STORM B                       0\n" +
                          kBlanks + "3         4\n";

TEST_F(HydrographFilesOnScreen, importTheQt40HydrographThatIsChosen) {
  screen.optVariable.userSelect();
  put(screen.grdTable, 1, {"9", "9", "9"});
  chooser.index = 0;
  import(menu.mnuImportQT40, kQt40);
  EXPECT_EQ(chooser.items, (Texts{"HYD       STORM A", "HYD       STORM B"}));
  EXPECT_TRUE(screen.optConst.selected() && screen.grdTable.visible());
  EXPECT_EQ(screen.cmdConvert.caption(), "Convert from Constant Time to Variable Time");
  EXPECT_EQ(screen.txtTitle.text(), "STORM A");
  EXPECT_EQ(screen.txtStartTime.text(), "1.5");
  EXPECT_EQ(screen.txtConst.text(), "0.25");
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"1", "2", ""}));
  EXPECT_EQ(column(screen.grdTable, 0, 2), (Texts{"0         ", "0.25      "}));
  EXPECT_EQ(screen.grdTable.cell(0, 0), " Time, hrs");
  chooser.index = 1;
  import(menu.mnuImportQT40, kQt40);
  EXPECT_EQ(screen.txtTitle.text(), "STORM B");
  EXPECT_EQ(screen.txtConst.text(), "");
  EXPECT_EQ(screen.grdTable.cell(1, 0), "");
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"3", "4", ""}));
}

TEST_F(HydrographFilesOnScreen, importNoQt40HydrographWhenNoneIsChosenOrThere) {
  put(screen.grdTable, 1, {"9"});
  chooser.index = -1;
  import(menu.mnuImportQT40, kQt40);
  EXPECT_EQ(chooser.runs, 1);
  EXPECT_FALSE(select.visible());
  EXPECT_TRUE(takeBoxes().empty());
  import(menu.mnuImportQT40, "nothing of the kind\n");
  EXPECT_EQ(takeBoxes(), Texts{"Import QT-40 File Error: The file holds no hydrograph."});
  EXPECT_EQ(chooser.runs, 1);
  EXPECT_EQ(screen.grdTable.cell(1, 1), "9");
}

TEST_F(HydrographFilesOnScreen, importTheQt40HydrographWhoseHeaderIsAFixedName) {
  chooser.index = 1;
  const std::string named = "INPUT HYDROGRAPH:\nSDH Inflow Hydrograph\n" + kBlanks + "5\n";
  import(menu.mnuImportQT40, named + "END\n" + named + "END\n");
  EXPECT_EQ(column(screen.grdTable, 1, 2), (Texts{"5", ""}));
}

std::string record(const std::string& code, const std::string& firstFlow) {
  return "3" + code + "\n            2\n 2          " + firstFlow + "\n 2.5        7\n5\nENDTABLE\n";
}

TEST_F(HydrographFilesOnScreen, importTheOnlyRecordOfAVhyFile) {
  put(screen.grdTable, 1, {"9", "9", "9"});
  put(screen.varTable, 0, {"9", "9", "9"});
  screen.txtTitle.setText("old");
  screen.optVariable.userSelect();
  import(menu.mnuImportTorve, "title\n" + record("5", "6") + record("2", "1"));
  EXPECT_EQ(chooser.runs, 0);
  EXPECT_TRUE(screen.optConst.selected());
  EXPECT_EQ(screen.txtStartTime.text(), "2");
  EXPECT_EQ(screen.txtConst.text(), "0.5");
  EXPECT_EQ(screen.txtDesired.text(), "0.5");
  EXPECT_EQ(screen.txtTitle.text(), "");
  EXPECT_EQ(column(screen.grdTable, 1, 3), (Texts{"6", "7", ""}));
  EXPECT_EQ(column(screen.grdTable, 0, 2), (Texts{"0         ", "0.5       "}));
  EXPECT_EQ(column(screen.varTable, 0, 3), (Texts{"0", "0.5", ""}));
  EXPECT_EQ(front(), "frmHydrographData");
}

TEST_F(HydrographFilesOnScreen, importTheRecordOfAVhyFileThatIsChosen) {
  chooser.index = 1;
  import(menu.mnuImportTorve, record("9", "90") + record("1", "10") + record("7", "70"));
  EXPECT_EQ(chooser.items, (Texts{"PSH Inflow Hydrograph", "Special Event Hydrograph", "Single Event Hydrograph"}));
  EXPECT_EQ(column(screen.grdTable, 1, 2), (Texts{"70", "7"}));
  chooser.index = -1;
  import(menu.mnuImportTorve, record("9", "90") + record("1", "10"));
  EXPECT_EQ(column(screen.grdTable, 1, 2), (Texts{"70", "7"}));
}

TEST_F(HydrographFilesOnScreen, doNothingWithAFileWithoutRecords) {
  put(screen.grdTable, 1, {"9"});
  for (const char* text : {"", "nothing\n"}) {
    import(menu.mnuImportTorve, text);
    EXPECT_EQ(screen.grdTable.cell(1, 1), "9");
    EXPECT_TRUE(takeBoxes().empty());
  }
}

TEST_F(HydrographFilesOnScreen, tellOfAFileWhoseRecordsAreAllUnknown) {
  put(screen.grdTable, 1, {"9"});
  for (const std::string& text : {record("4", "1"), record("15", "1"), record("2", "1") + record("4", "1")}) {
    import(menu.mnuImportTorve, text);
    EXPECT_EQ(screen.grdTable.cell(1, 1), "9");
    EXPECT_EQ(takeBoxes(), Texts{"Import TORVE File Error: The file holds no hydrograph."});
  }
}

TEST_F(HydrographFilesOnScreen, importAThyFileByTheSameCommand) {
  put(screen.grdTable, 1, {"9", "9", "9", "9"});
  screen.optVariable.userSelect();
  import(menu.mnuImportTorve,
         "HYD" + std::string(27, ' ') + "Storm\n" + kBlanks + "0.5\n" + kBlanks + "1         2         3\nENDTABLE\n");
  EXPECT_TRUE(screen.optConst.selected());
  EXPECT_EQ(screen.txtTitle.text(), "Storm");
  EXPECT_EQ(screen.txtConst.text(), "0.5");
  EXPECT_EQ(column(screen.grdTable, 1, 4), (Texts{"1", "2", "3", ""}));
  EXPECT_EQ(column(screen.grdTable, 0, 2), (Texts{"0         ", "0.5       "}));
  EXPECT_EQ(front(), "frmHydrographData");
}

TEST_F(HydrographFilesOnScreen, exportAThyFileThatReadsBackAsItWas) {
  screen.txtTitle.setText("Storm");
  screen.setIncrement("0.5");
  put(screen.grdTable, 1, {"1", "2", "3", "4", "5", "6", "7"});
  choose("/p/storm.THY");
  menu.mnuExport.click();
  EXPECT_EQ(dialogs.shownFiles.back().kind, FileDialog::Kind::save);
  EXPECT_EQ(dialogs.shownFiles.back().title, "Save File");
  EXPECT_EQ(dialogs.shownFiles.back().filter, "All Files (*.*)|*.*|Hydrograph Data Files (*.THY)|*.THY");
  EXPECT_EQ(files.content("/p/storm.THY"), "HYD" + std::string(27, ' ') + "Storm\r\n" + kBlanks + "0.5\r\n" + kBlanks +
                                               "1         2         3         4         5\r\n" + kBlanks +
                                               "6         7\r\nENDTABLE\r\n");
  host.unload(screen);
  host.show(screen);
  menu.LoadHydrographForms("/p/storm.THY");
  EXPECT_EQ(column(screen.grdTable, 1, 8), (Texts{"1", "2", "3", "4", "5", "6", "7", ""}));
  EXPECT_EQ(screen.txtTitle.text(), "Storm");
}

TEST_F(HydrographFilesOnScreen, tellWhatAThyFileCannotHold) {
  screen.setIncrement("0.5");
  put(screen.grdTable, 1, {"12345.678901", "2", "3", "4", "5", "", "7"});
  choose("/p/storm.THY");
  menu.mnuExport.click();
  EXPECT_EQ(
      takeBoxes(),
      (Texts{"Export File Error: Discharges were cut to their first ten characters: 1, the first of them in row 1.",
             "Export File Error: The table holds 6 points, of which the first 5 were written."}));
  EXPECT_TRUE(files.content("/p/storm.THY").has_value());
  menu.SaveTable("/none/storm.THY");
  EXPECT_EQ(takeBoxes(), Texts{"Export File Error: /none: No such file or directory"});
}

TEST_F(HydrographFilesOnScreen, exportUnderANameOtherThanTheOneAnnouncedWhenNoneIsGiven) {
  put(screen.grdTable, 1, {"1"});
  choose("");
  menu.mnuExport.click();
  EXPECT_EQ(takeBoxes(), Texts{"Save File: No filename was provided, default to /p/hydro.THY"});
  EXPECT_EQ(files.paths(), (Texts{"/p", "/p/torve.THY"}));
  menu.mnuExport.click();
  EXPECT_TRUE(takeBoxes().empty());
  state.projectDir = "";
  choose("");
  menu.mnuExport.click();
  EXPECT_EQ(takeBoxes(), Texts{"Save File: No filename was provided, default to /hydro.THY"});
}

TEST_F(HydrographFilesOnScreen, exportNoThyFileOfVariableTime) {
  EXPECT_TRUE(menu.mnuExport.enabled());
  screen.optVariable.userSelect();
  EXPECT_TRUE(menu.mnuExport.enabled());
  choose("/p/storm.THY");
  menu.mnuExport.click();
  EXPECT_EQ(takeBoxes(),
            Texts{"Export File Error: Only a hydrograph with a constant time increment can be exported in this form."});
  EXPECT_TRUE(dialogs.shownFiles.empty());
  EXPECT_EQ(files.paths(), Texts{"/p"});
}

TEST_F(HydrographFilesOnScreen, exportTabDelimitedTextOfTheTableOnShow) {
  screen.setIncrement("0.5");
  put(screen.grdTable, 1, {"1", "", "3"});
  screen.renumber();
  choose("/p/a.txt");
  menu.mnuExportTab.click();
  EXPECT_EQ(dialogs.shownFiles.back().title, "Select a file");
  EXPECT_EQ(dialogs.shownFiles.back().filter, "All Files (*.*)|*.*|Text Files (*.txt)|*.txt");
  EXPECT_EQ(files.content("/p/a.txt"), "0         \t1\r\n1         \t3\r\n");
  screen.optVariable.userSelect();
  put(screen.varTable, 0, {"0", "", "7"});
  put(screen.varTable, 1, {"5", "", ""});
  choose("/p/b.txt");
  menu.mnuExportTab.click();
  EXPECT_EQ(files.content("/p/b.txt"), "0\t5\r\n7\t\r\n");
}

TEST_F(HydrographFilesOnScreen, tellOfAnExportThatFailsOrHasNoName) {
  choose("");
  menu.mnuExportTab.click();
  EXPECT_EQ(takeBoxes(), Texts{"Select a File: No filename is provided"});
  choose("/none/a.txt");
  menu.mnuExportTab.click();
  EXPECT_EQ(takeBoxes(), Texts{"Export File Error: /none: No such file or directory"});
  choose("/p");
  menu.mnuExport.click();
  EXPECT_EQ(takeBoxes(), Texts{"Export File Error: /p: Is a directory"});
}

TEST_F(HydrographFilesOnScreen, selectByNameOrByPlaceInTheList) {
  EXPECT_EQ(select.title(), "Select Hydrograph");
  EXPECT_EQ(select.lblSelect.caption(), "Please select which hydrograph should be imported:");
  EXPECT_EQ(select.cmdOK.caption(), "&OK");
  select.List1.setItems({"PSH Inflow Hydrograph", "SDH Inflow Hydrograph", "FBH Inflow Hydrograph",
                         "Special Event Hydrograph", "Single Event Hydrograph", "other"});
  const Texts codes = {"1", "3", "5", "7", "9", "5"};
  for (std::size_t i = 0; i < codes.size(); ++i) {
    host.show(select);
    select.List1.userSelect(static_cast<int>(i));
    select.cmdOK.click();
    EXPECT_EQ(screen.hydrographCode(), codes[i]);
    EXPECT_FALSE(select.visible());
  }
}

}  // namespace
}  // namespace kestra
