#include "desktop/qt_desk.h"

#include <QCommandLineParser>

#include "base/paths.h"
#include "desktop/help_window.h"
#include "desktop/qt_text.h"
#include "platform/files.h"
#include "platform/native/executable_directory.h"
#include "platform/native/user_directories.h"

namespace kestra {
namespace {

std::string settingsPath(const DeskOptions& options, FileSystem& files) {
  if (!options.settingsFile.isEmpty()) return absolutePath(told(options.settingsFile), files.currentDirectory());
  return userSettingsFile();
}

std::string applicationPath(const DeskOptions& options, FileSystem& files) {
  if (!options.appDirectory.isEmpty()) return absolutePath(told(options.appDirectory), files.currentDirectory());
  return executableDirectory();
}

}  // namespace

DeskOptions deskOptions(const QCoreApplication& toolkit) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Overtopping and breach of embankment dams."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption appDirectory(
      QStringLiteral("app-dir"), QStringLiteral("Where the programs that it starts stand."), QStringLiteral("DIR"));
  const QCommandLineOption settings(QStringLiteral("settings"), QStringLiteral("The file of the settings."),
                                    QStringLiteral("FILE"));
  parser.addOptions({appDirectory, settings});
  parser.addPositionalArgument(QStringLiteral("CONTROL_FILE"), QStringLiteral("A control file to open."),
                               QStringLiteral("[CONTROL_FILE]"));
  parser.process(toolkit);
  return {parser.positionalArguments().value(0), parser.value(appDirectory), parser.value(settings)};
}

void QtHelpViewer::showTopic(const std::string& topic) {
  showHelp(shown(topic));
}

Status DeskPrinter::print(const std::string& pdf, const PrintChoice& choice) {
  if (choice.device.find('/') != std::string::npos) return writeWholeFile(files_, choice.device, pdf);
  return spool_.print(pdf, choice);
}

QtDesk::QtDesk(const DeskOptions& options)
    : applicationDirectory_(applicationPath(options, files_)), settings_(files_, settingsPath(options, files_)) {}

Ports QtDesk::ports() {
  return {boxes_, dialogs_, settings_, clipboard_, processes_, files_, events_, beeper_, entropy_, clock_, help_};
}

}  // namespace kestra
