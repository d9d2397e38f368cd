#include <QApplication>
#include <cstdio>

#include "desktop/desk.h"
#include "desktop/qt_desk.h"
#include "desktop/qt_text.h"

int main(int argc, char** argv) {
  QApplication toolkit(argc, argv);
  QApplication::setApplicationName(QStringLiteral("kestra-b"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setApplicationVersion(QStringLiteral(KESTRA_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.kestrab.KestraB"));
  const kestra::DeskOptions options = kestra::deskOptions(toolkit);
  kestra::QtDesk desk(options);
  kestra::Application application(desk.ports(), desk.applicationDirectory());
  application.shell.graphs.context.pictures = &desk.pictures();
  application.shell.graphs.context.printer = &desk.printer();
  kestra::Desk window(application);
  window.start(options.controlFile);
  if (application.shell.ended()) return 1;
  return QApplication::exec();
}
