#include "desktop/help_window.h"

#include <gtest/gtest.h>

#include <QTextBrowser>

#include "desktop/qt_text.h"
#include "support/scripted_desk.h"

namespace kestra {
namespace {

QString textOf(const HelpWindow& window) {
  return window.findChild<QTextBrowser*>()->toPlainText();
}

TEST(HelpWindow, hasThePageOfEveryHelpButton) {
  RunningDesk desk;
  HelpWindow window;
  for (Screen* screen : desk.app.host.screens()) {
    auto* const button = dynamic_cast<Button*>(screen->find("cmdHelp"));
    if (button == nullptr) continue;
    desk.help.topics.clear();
    desk.app.host.load(*screen);
    button->click();
    ASSERT_EQ(desk.help.topics.size(), 1U) << screen->name();
    window.showTopic(shown(desk.help.topics.front()));
    EXPECT_NE(window.page(), QStringLiteral("Contents")) << screen->name() << ": " << desk.help.topics.front();
  }
}

TEST(HelpWindow, showsTheContentsForATopicThatThereIsNot) {
  HelpWindow window;
  window.showTopic(QStringLiteral("html\\StructureTable.htm"));
  EXPECT_TRUE(textOf(window).startsWith(QStringLiteral("Structure table")));
  window.showTopic(QStringLiteral("html\\Nothing.htm"));
  EXPECT_EQ(window.page(), QStringLiteral("Contents"));
  window.showTopic({});
  EXPECT_EQ(window.page(), QStringLiteral("Contents"));
}

TEST(HelpWindow, listsThePagesThatHoldAllWords) {
  HelpWindow window;
  const auto all = window.found().size();
  window.search(QStringLiteral("RIPRAP porosity"));
  EXPECT_TRUE(window.found().contains(QStringLiteral("Dam surface")));
  EXPECT_LT(window.found().size(), all);
  window.search(QStringLiteral("nowhere-to-be-found"));
  EXPECT_TRUE(window.found().isEmpty());
  window.search({});
  EXPECT_EQ(window.found().size(), all);
  for (const QString& title : window.found()) EXPECT_FALSE(title.contains(QLatin1Char('`'))) << told(title);
}

}  // namespace
}  // namespace kestra
