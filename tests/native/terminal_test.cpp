#include <gtest/gtest.h>

#include <sstream>

#include "platform/native/system_ports.h"
#include "platform/native/terminal_dialogs.h"
#include "platform/native/terminal_message_boxes.h"
#include "support/contracts/small_ports_contract.h"

namespace kestra {
namespace {

using B = BoxButton;

struct BoxCase {
  bool yes;
  std::vector<BoxButton> buttons;
  BoxButton answer;
  int refused;
  std::string lines;
};

TEST(TerminalMessageBoxes, printABoxAndAnswerAsTheCallerWants) {
  const std::string box = "Title: Text\n";
  const std::string advice = "refused; --yes answers Yes\n";
  const std::vector<BoxCase> cases = {{false, {B::ok}, B::ok, 0, box},
                                      {true, {B::ok}, B::ok, 0, box},
                                      {false, {B::yes, B::no}, B::no, 1, box + advice},
                                      {true, {B::yes, B::no}, B::yes, 0, box},
                                      {false, {B::yes, B::no, B::cancel}, B::cancel, 1, box + advice},
                                      {true, {B::yes, B::no, B::cancel}, B::yes, 0, box},
                                      {true, {B::ok, B::cancel}, B::cancel, 1, box + "refused\n"}};
  for (const BoxCase& c : cases) {
    std::ostringstream lines;
    TerminalMessageBoxes boxes(lines, c.yes);
    EXPECT_EQ(boxes.show({"Title", "Text", BoxIcon::question, c.buttons}), c.answer);
    EXPECT_EQ(boxes.refused(), c.refused);
    EXPECT_EQ(lines.str(), c.lines);
  }
}

TEST(TerminalMessageBoxes, answerWithinTheButtons) {
  std::ostringstream lines;
  for (const bool yes : {false, true}) {
    TerminalMessageBoxes boxes(lines, yes);
    expectAnswersWithinTheButtons(boxes);
    EXPECT_EQ(boxes.refused(), yes ? 1 : 3);
  }
}

TEST(TerminalDialogs, areCancelledWithALineEach) {
  std::ostringstream lines;
  TerminalDialogs dialogs(lines);
  expectDialogsThatNobodyAnswersToBeCancelled(dialogs);
  EXPECT_EQ(dialogs.chooseFiles({FileDialog::Kind::save, "Save As", "", 1, "dam.KSC", false}), std::nullopt);
  EXPECT_EQ(lines.str(),
            "cancelled: open dialog \"Open\"\ncancelled: directory dialog \"Choose\"\ncancelled: colour dialog\n"
            "cancelled: font dialog\ncancelled: print dialog\ncancelled: save dialog \"Save As\"\n");
}

TEST(TerminalDialogs, confirmASaveDialogWithThePathThatItOffersWhereTheCallerSaysYes) {
  using Kind = FileDialog::Kind;
  std::ostringstream lines;
  TerminalDialogs dialogs(lines, true);
  const std::vector<std::string> dam = {"/p/dam.KSC"};
  EXPECT_EQ(dialogs.chooseFiles({Kind::save, "Save File", "", 1, "/p/dam.KSC", false}), dam);
  EXPECT_EQ(dialogs.chooseFiles({Kind::save, "Save File", "", 1, "/p/dam.KSC", false}), std::nullopt);
  EXPECT_EQ(dialogs.chooseFiles({Kind::save, "Save File", "", 1, "dam.KSC", false}), std::nullopt);
  EXPECT_EQ(dialogs.chooseFiles({Kind::open, "Open", "", 1, "/p/lake.KSC", false}), std::nullopt);
  EXPECT_EQ(lines.str(),
            "confirmed: save dialog \"Save File\": /p/dam.KSC\ncancelled: save dialog \"Save File\"\n"
            "cancelled: save dialog \"Save File\"\ncancelled: open dialog \"Open\"\n");
}

}  // namespace
}  // namespace kestra
