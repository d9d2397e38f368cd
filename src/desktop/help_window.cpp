#include "desktop/help_window.h"

#include <QApplication>
#include <QFile>
#include <QTextBrowser>

namespace kestra {
namespace {

QString pageOf(const QString& topic) {
  const QString name = topic.section(QLatin1Char('\\'), -1).section(QLatin1Char('.'), 0, 0);
  const QString path = QStringLiteral("qrc:/help/%1.md").arg(name);
  return !name.isEmpty() && QFile::exists(path.mid(3)) ? path : QStringLiteral("qrc:/help/Contents.md");
}

QTextBrowser* browser() {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->objectName() == QLatin1String("help")) return qobject_cast<QTextBrowser*>(window);
  auto* const made = new QTextBrowser;
  made->setObjectName(QStringLiteral("help"));
  made->setAttribute(Qt::WA_DeleteOnClose);
  made->setAttribute(Qt::WA_QuitOnClose, false);
  made->setWindowTitle(QStringLiteral("Kestra B - Help"));
  constexpr QSize kUsualSize{720, 640};
  made->resize(kUsualSize);
  return made;
}

}  // namespace

void showHelp(const QString& topic) {
  QTextBrowser* const window = browser();
  window->setSource(QUrl(pageOf(topic)), QTextDocument::MarkdownResource);
  window->show();
  window->raise();
}

}  // namespace kestra
