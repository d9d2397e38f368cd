// Takes the pictures of the README: screenshots CONTROL_FILE DIRECTORY. It works as a user would on a display that is
// there: opens the file, which stands in a project, builds it, and looks at what came out.
#include <QApplication>
#include <QScreen>
#include <QTest>
#include <cstdio>

#include "desktop/desk.h"
#include "desktop/qt_desk.h"
#include "desktop/qt_text.h"

namespace kestra {
namespace {

constexpr int kPatience = 400;  // milliseconds until a window has settled
constexpr QSize kSize{1180, 800};

// With few colours, since a picture stands in the repository.
bool take(QWidget& window, const QString& file) {
  QTest::qWait(kPatience);
  const QImage picture = window.screen()->grabWindow(window.winId()).toImage();
  const QImage small = picture.convertToFormat(QImage::Format_Indexed8, Qt::AvoidDither | Qt::ThresholdDither);
  if (!picture.isNull() && small.save(file, "PNG")) return true;
  std::fprintf(stderr, "screenshots: %s could not be taken\n", file.toLocal8Bit().constData());
  return false;
}

int work(const QString& controlFile, const QString& directory) {
  const QString scratch = directory + QStringLiteral("/settings.ini");
  QtDesk ports({controlFile, QStringLiteral(KESTRA_BIN_DIR), scratch});
  Application application(ports.ports(), ports.applicationDirectory());
  Shell& shell = application.shell;
  Desk window(application);
  window.start(controlFile);
  if (shell.ended()) return 1;
  window.setGeometry(QRect(QPoint(0, 0), kSize));
  const auto at = [&directory](const char* name) { return directory + QLatin1Char('/') + QLatin1String(name); };

  const auto show = [&application](Screen& screen) { application.host.show(screen); };
  const auto hide = [&application](Screen& screen) { application.host.hide(screen); };

  show(shell.input.damSurface);
  bool taken = take(window, at("dam-surface.png"));
  hide(shell.input.damSurface);
  show(shell.input.hydrographData);
  taken = take(window, at("hydrograph.png")) && taken;
  hide(shell.input.hydrographData);
  if (!application.builds.BuildMyFiles(true)) return 1;
  shell.graphs.output.OpenFile(application.state.currentFile);
  QTest::qWait(kPatience);
  shell.inputWindow.mnuTile.click();
  taken = take(window, at("graphs.png")) && taken;
  return taken ? 0 : 1;
}

}  // namespace
}  // namespace kestra

int main(int argc, char** argv) {
  QApplication toolkit(argc, argv);
  const QStringList words = QApplication::arguments();
  if (words.size() != 3) return 2;
  return kestra::work(words[1], words[2]);
}
