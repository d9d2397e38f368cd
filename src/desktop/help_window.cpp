#include "desktop/help_window.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>

// The pages stand in a static library: without this nothing would refer to them.
static void bindPages() {
  Q_INIT_RESOURCE(help);
}

namespace kestra {
namespace {

constexpr const char* kContents = "Contents";
constexpr QSize kUsualSize{900, 680};

QString pageText(const QString& name) {
  QFile page(QStringLiteral(":/help/%1.md").arg(name));
  return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

QString titleOf(const QString& text) {
  return text.section(QLatin1Char('\n'), 0, 0).remove(QLatin1Char('#')).remove(QLatin1Char('`')).trimmed();
}

}  // namespace

HelpWindow::HelpWindow() : words_(new QLineEdit), pages_(new QListWidget), text_(new QTextBrowser) {
  bindPages();
  setObjectName(QStringLiteral("help"));
  setWindowTitle(QStringLiteral("Kestra B - Help"));
  setAttribute(Qt::WA_QuitOnClose, false);
  words_->setObjectName(QStringLiteral("words"));
  words_->setPlaceholderText(QStringLiteral("Search"));
  words_->setClearButtonEnabled(true);
  words_->setAccessibleName(QStringLiteral("Search the help"));
  pages_->setAccessibleName(QStringLiteral("Pages"));
  text_->setOpenLinks(false);
  auto* const left = new QWidget;
  auto* const column = new QVBoxLayout(left);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(words_);
  column->addWidget(pages_);
  auto* const parts = new QSplitter;
  parts->addWidget(left);
  parts->addWidget(text_);
  parts->setStretchFactor(1, 3);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(parts);
  resize(kUsualSize);
  connect(words_, &QLineEdit::textChanged, this, [this](const QString& words) { search(words); });
  connect(pages_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
    if (item != nullptr) showPage(item->data(Qt::UserRole).toString());
  });
  connect(text_, &QTextBrowser::anchorClicked, this,
          [this](const QUrl& link) { showPage(link.path().section(QLatin1Char('.'), 0, 0)); });
  search({});
}

void HelpWindow::showTopic(const QString& topic) {
  const QString name = topic.section(QLatin1Char('\\'), -1).section(QLatin1Char('.'), 0, 0);
  showPage(name.isEmpty() || pageText(name).isEmpty() ? QString::fromLatin1(kContents) : name);
}

void HelpWindow::search(const QString& words) {
  const QStringList wanted = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  pages_->clear();
  QStringList listed;
  for (const QString& file : QDir(QStringLiteral(":/help")).entryList()) {
    const QString name = file.section(QLatin1Char('.'), 0, 0);
    const QString text = pageText(name);
    const QString title = titleOf(text);
    const bool holdsAll = std::all_of(wanted.begin(), wanted.end(), [&text](const QString& word) {
      return text.contains(word, Qt::CaseInsensitive);
    });
    if (!holdsAll || listed.contains(title)) continue;
    listed.append(title);
    auto* const item = new QListWidgetItem(title, pages_);
    item->setData(Qt::UserRole, name);
  }
  pages_->sortItems();
}

QStringList HelpWindow::found() const {
  QStringList titles;
  for (int i = 0; i < pages_->count(); ++i) titles.append(pages_->item(i)->text());
  return titles;
}

void HelpWindow::showPage(const QString& name) {
  const QString text = pageText(name);
  if (text.isEmpty()) return;
  page_ = name;
  text_->setMarkdown(text);
}

void showHelp(const QString& topic) {
  HelpWindow* window = nullptr;
  for (QWidget* each : QApplication::topLevelWidgets())
    if (each->objectName() == QLatin1String("help")) window = static_cast<HelpWindow*>(each);
  if (window == nullptr) {
    window = new HelpWindow;
    QObject::connect(qApp, &QApplication::aboutToQuit, window, &QObject::deleteLater);
  }
  window->showTopic(topic);
  window->show();
  window->raise();
  window->activateWindow();
}

}  // namespace kestra
