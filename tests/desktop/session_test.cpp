#include <gtest/gtest.h>

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QTableView>
#include <QTreeView>
#include <fstream>
#include <sstream>

#include "desktop/canvas_widget.h"
#include "desktop/real_desk.h"
#include "support/window_desk.h"

namespace kestra {
namespace {

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::stringstream content;
  content << file.rdbuf();
  return content.str();
}

// A control file that holds nothing but what fields on show hold.
std::string example() {
  std::string text = contentOf(KESTRA_SOURCE_DIR "/examples/stock-pond.KSC");
  const std::pair<const char*, const char*> hidden[] = {{"5.6       2.65      ", "5.6                 "},
                                                        {"3.1       0         ", "3.1       6         "}};
  for (const auto& [kept, typed] : hidden) text.replace(text.find(kept), std::string(kept).size(), typed);
  return text;
}

// The example's values, in the screens of a second system whose files are in memory.
struct Pattern : WindowDesk {
  Pattern() {
    memory.put("/home/dam/example.KSC", example());
    open("/home/dam/example.KSC");
  }
};

// Types into the windows what another system's screens hold.
class Typist {
 public:
  Typist(RealDesk& desk, Application& pattern) : desk_(desk), pattern_(pattern) {}

  void fill(Screen& screen) {
    const Screen& wanted = *pattern_.host.find(screen.name());
    for (const bool choosing : {true, false}) {
      for (Control* control : screen.controls()) {
        const bool chooses = control->kind() == ControlKind::option || control->kind() == ControlKind::combo;
        if (control->visible() && control->enabled() && chooses == choosing)
          enter(*control, *wanted.find(control->name()));
      }
    }
  }

 private:
  void enter(Control& control, const Control& wanted) {
    if (auto* const option = dynamic_cast<OptionButton*>(&control))
      return choose(*option, dynamic_cast<const OptionButton&>(wanted));
    if (auto* const check = dynamic_cast<CheckBox*>(&control))
      return set(*check, dynamic_cast<const CheckBox&>(wanted).checked());
    if (auto* const combo = dynamic_cast<ComboBox*>(&control))
      return select(*combo, dynamic_cast<const ComboBox&>(wanted).index());
    if (auto* const box = dynamic_cast<TextBox*>(&control))
      return write(*box, dynamic_cast<const TextBox&>(wanted).text());
    if (auto* const table = dynamic_cast<Table*>(&control)) return write(*table, dynamic_cast<const Table&>(wanted));
  }
  void choose(OptionButton& option, const OptionButton& wanted) {
    if (wanted.selected() && !option.selected()) desk_.click(option);
  }
  void set(CheckBox& check, bool checked) {
    if (check.checked() != checked) desk_.click(check);
  }
  void select(ComboBox& combo, int index) {
    while (combo.index() < index) QTest::keyClick(&desk_.widget(combo), Qt::Key_Down);
    QTest::qWait(0);
  }
  void write(TextBox& box, const std::string& text) {
    if (box.text() == text) return;
    QWidget& field = desk_.widget(box);
    field.setFocus();
    QTest::qWait(0);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    for (const char c : text) {
      if (c == '\r') continue;
      c == '\n' ? QTest::keyClick(&field, Qt::Key_Return) : QTest::keyClick(&field, c);
    }
    QTest::qWait(0);
    EXPECT_EQ(box.text(), text) << box.screen().name() << "." << box.name();
  }
  void write(Table& table, const Table& wanted) {
    QWidget& view = desk_.widget(table);
    view.setFocus();
    QTest::qWait(0);
    for (int row = table.fixedRows(); row < table.rows(); ++row) {
      for (int column = table.fixedColumns(); column < table.columns(); ++column) {
        const std::string& text = wanted.cell(row, column);
        if (text.empty()) continue;
        walkTo(table, view, {row, column});
        QTest::keyClicks(&view, shown(text));
        EXPECT_EQ(table.cell(row, column), text) << table.screen().name() << " " << row << "," << column;
      }
    }
  }
  static void walkTo(Table& table, QWidget& view, CellPosition to) {
    while (table.cursor().row != to.row)
      QTest::keyClick(&view, table.cursor().row < to.row ? Qt::Key_Down : Qt::Key_Up);
    while (table.cursor().column != to.column)
      QTest::keyClick(&view, table.cursor().column < to.column ? Qt::Key_Right : Qt::Key_Left);
  }

  RealDesk& desk_;
  Application& pattern_;
};

// What `kestra drive` writes when it is given the example and told to save it.
std::string writtenByDriving(const RealDesk& desk, const std::string& path) {
  std::ofstream(path, std::ios::binary) << example();
  QProcess drive;
  drive.start(QStringLiteral(KESTRA_BIN_DIR "/kestra"),
              {QStringLiteral("drive"), shown(path), QStringLiteral("--settings"), shown(desk.folder.at("other.ini"))});
  const std::string saving = R"({"do":"call","name":"BuildControlText","args":[")" + path + "\"]}\n" +
                             R"({"do":"call","name":"WriteControlFiles","args":[")" + path + "\"]}\n";
  drive.write(saving.c_str());
  drive.closeWriteChannel();
  EXPECT_TRUE(drive.waitForFinished());
  EXPECT_EQ(drive.exitCode(), 0) << drive.readAllStandardError().toStdString();
  return contentOf(path);
}

TEST(Session, typesADamSavesBuildsAndLooksAtItsGraphs) {
  Pattern pattern;
  RealDesk desk;
  desk.key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  desk.type(desk.shell.newProject.txtEnterName, "pond");
  desk.click(desk.shell.newProject.cmdOK);
  const std::string project = desk.folder.at("pond");
  ASSERT_EQ(desk.app.state.projectDir, project);

  desk.key(Qt::Key_N, Qt::ControlModifier);
  desk.click(desk.shell.inputWindow.cmdNext);
  Typist typist(desk, pattern.app);
  std::vector<std::string> walked;
  while (&desk.front() != &desk.shell.inputWindow && walked.size() < 20) {
    Screen& screen = desk.front();
    walked.push_back(screen.name());
    typist.fill(screen);
    desk.picture(screen.name().c_str());
    desk.click(*screen.find("cmdNext"));
  }
  EXPECT_EQ(walked, (std::vector<std::string>{"frmProjectInformation", "Properties", "frmDamSurface",
                                              "frmStructureTable", "frmHydrographData", "frmPSType", "frmPSConduit",
                                              "frmPSRatingTable", "frmAuxSpillways", "frmAuxRatingTable"}));

  const std::string file = project + "/typed.KSC";
  {
    const NextBox name(NextBox::naming(file));
    desk.key(Qt::Key_S, Qt::ControlModifier);
  }
  EXPECT_EQ(contentOf(file), writtenByDriving(desk, project + "/driven.KSC"));
  EXPECT_EQ(desk.app.state.currentFile, file);

  desk.key(Qt::Key_F5, {});
  EXPECT_NE(contentOf(project + "/typed.OUT"), "");
  EXPECT_EQ(desk.app.summary.entryNames().size(), 1U);

  frmOutputGraph& graphs = desk.shell.graphs.output;
  graphs.OpenFile(file);
  QTest::qWait(40);
  auto& canvas = dynamic_cast<CanvasWidget&>(desk.widget(graphs.Pic1(0)));
  ASSERT_TRUE(canvas.isVisible());
  EXPECT_TRUE(graphs.isDrawn(0));
  desk.picture("graph");
  const double whole = graphs.savedWindow(0).xRange();
  QTest::mouseClick(&canvas, Qt::LeftButton, {}, canvas.rect().center());
  EXPECT_LT(graphs.savedWindow(0).xRange(), whole);
  desk.picture("zoomed");
  EXPECT_EQ(takeWarnings(), "");

  const NextBox agreed(NextBox::pressing(Qt::Key_Return));
  desk.window.close();
  EXPECT_TRUE(desk.shell.ended());
}

TEST(Session, opensAgainWhatItHasSaved) {
  RealDesk desk;
  makeProject(desk.shell, desk.folder.path(), "pond");
  QTest::qWait(0);
  const std::string file = desk.folder.at("pond/dam.KSC");
  std::filesystem::copy_file(KESTRA_SOURCE_DIR "/examples/stock-pond.KSC", file);
  {
    const NextBox name(NextBox::naming(file));
    desk.key(Qt::Key_O, Qt::ControlModifier);
  }
  EXPECT_EQ(told(desk.window.viewOf(desk.shell.inputWindow).parentWidget()->windowTitle()),
            "Kestra B ( " + file + " )");
  desk.click(desk.shell.inputWindow.cmdNext);
  auto& title = dynamic_cast<QLineEdit&>(desk.widget(desk.shell.input.projectInformation.txtWatershedID));
  EXPECT_EQ(title.text(), QStringLiteral("Larkmoor Farm stock pond"));
  EXPECT_EQ(takeWarnings(), "");
}

// An engine that would run for an hour.
void putHangingEngine(const std::string& folder) {
  const std::string engine = folder + "/KestraSim.exe";
  std::ofstream(engine) << "#!/bin/sh\nexec sleep 3600\n";
  std::filesystem::permissions(engine, std::filesystem::perms::owner_all);
}

TEST(Session, stopsAnEngineThatHangs) {
  const TempDirectory programs;
  putHangingEngine(programs.path());
  RealDesk desk(shown(programs.path()));
  makeProject(desk.shell, desk.folder.path(), "pond");
  QTest::qWait(0);
  const std::string file = desk.folder.at("pond/dam.KSC");
  std::ofstream(file, std::ios::binary) << example();
  desk.shell.commands.file.open(file);
  frmProgress& progress = desk.shell.progress;
  int looks = 0;
  QTimer stopping;
  QObject::connect(&stopping, &QTimer::timeout, [&] {
    if (!progress.visible() || ++looks < 3) return;  // it is on show, and the window goes on living
    EXPECT_EQ(QApplication::activeModalWidget(), desk.window.viewOf(progress).window());
    desk.picture("progress");
    if (!progress.stopRequested()) desk.click(progress.cmdStop);
  });
  stopping.start(50);
  desk.key(Qt::Key_F5, {});
  EXPECT_GE(looks, 3);
  EXPECT_EQ(progress.lblTold.caption(), "Stopped while KestraSim.exe ran.");
  EXPECT_FALSE(std::filesystem::exists(desk.folder.at("pond/dam.OUT")));
}

TEST(Session, tellsInARealBoxWhatIsWrong) {
  RealDesk desk;
  desk.key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  std::filesystem::create_directory(desk.folder.at("pond"));
  desk.type(desk.shell.newProject.txtEnterName, "pond");
  QString text;
  const NextBox box([&text](QDialog& dialog) {
    text = dynamic_cast<QMessageBox&>(dialog).text();
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  desk.click(desk.shell.newProject.cmdOK);
  EXPECT_EQ(told(text), "Project directory already exists, please try another name.");
  EXPECT_EQ(desk.app.state.projectDir, "");
}

TEST(Session, showsTheDirectoryInWhichANewProjectIsMade) {
  RealDesk desk;
  desk.key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  auto& tree = dynamic_cast<QTreeView&>(desk.widget(desk.shell.newProject.dirList));
  const auto inSight = [&tree] {
    return tree.viewport()->rect().contains(tree.visualRect(tree.currentIndex()).center());
  };
  EXPECT_TRUE(QTest::qWaitFor(inSight));
  constexpr int kSettling = 300;  // in which the directories above are read
  QTest::qWait(kSettling);
  EXPECT_TRUE(inSight());
  EXPECT_EQ(told(tree.currentIndex().data().toString()), std::filesystem::path(desk.folder.path()).filename());
  tree.setCurrentIndex({});  // as when the directories around it change
  EXPECT_EQ(desk.shell.newProject.dirList.path(), desk.folder.path());
  EXPECT_TRUE(QTest::qWaitFor([&tree] { return tree.currentIndex().isValid(); }));
}

}  // namespace
}  // namespace kestra
