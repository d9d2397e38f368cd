#pragma once

#include <QString>
#include <QWidget>

class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace kestra {

// The help: its pages, a list of them that a word narrows to those that hold it, and the page on show. Works offline.
class HelpWindow : public QWidget {
 public:
  HelpWindow();

  // "html\StructureTable.htm"; empty, or a page that there is not: the contents.
  void showTopic(const QString& topic);
  QString page() const { return page_; }  // "StructureTable"
  // Lists the pages that hold every word of the text, whatever its case; all of them for an empty text.
  void search(const QString& words);
  QStringList found() const;  // titles, as listed

 private:
  void showPage(const QString& name);

  QLineEdit* words_;
  QListWidget* pages_;
  QTextBrowser* text_;
  QString page_;
};

// Shows the one window of the help, made on first use.
void showHelp(const QString& topic);

}  // namespace kestra
