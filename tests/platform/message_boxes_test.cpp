#include "platform/message_boxes.h"

#include <gtest/gtest.h>

#include "platform/scripted.h"

namespace kestra {
namespace {

TEST(MessageBox, isRefusedByCancelElseNoElseItsFirstButton) {
  using B = BoxButton;
  const std::vector<std::pair<std::vector<B>, B>> cases = {{{B::ok}, B::ok},
                                                           {{B::yes, B::no}, B::no},
                                                           {{B::yes, B::no, B::cancel}, B::cancel},
                                                           {{B::ok, B::cancel}, B::cancel},
                                                           {{B::yes, B::ok}, B::yes}};
  for (const auto& [buttons, wanted] : cases) EXPECT_EQ(refusal({"", "", BoxIcon::none, buttons}), wanted);
}

TEST(MessageBox, namesItsButtonsAndIcons) {
  EXPECT_EQ(captionOf(BoxButton::ok), "OK");
  EXPECT_EQ(captionOf(BoxButton::yes), "Yes");
  EXPECT_EQ(captionOf(BoxButton::no), "No");
  EXPECT_EQ(captionOf(BoxButton::cancel), "Cancel");
  EXPECT_EQ(nameOf(BoxIcon::none), "none");
  EXPECT_EQ(nameOf(BoxIcon::information), "information");
  EXPECT_EQ(nameOf(BoxIcon::warning), "warning");
  EXPECT_EQ(nameOf(BoxIcon::critical), "critical");
  EXPECT_EQ(nameOf(BoxIcon::question), "question");
}

TEST(MessageBoxes, tellWithOneButtonAndConfirmWithTwo) {
  ScriptedMessageBoxes boxes;
  boxes.answers = {BoxButton::ok, BoxButton::yes, BoxButton::no};
  boxes.tell("Title", "Text", BoxIcon::warning);
  EXPECT_TRUE(boxes.confirm("Title", "Sure?"));
  EXPECT_FALSE(boxes.confirm("Title", "Sure?"));
  ASSERT_EQ(boxes.shown.size(), 3U);
  EXPECT_EQ(boxes.shown[0].icon, BoxIcon::warning);
  EXPECT_EQ(boxes.shown[0].buttons, (std::vector<BoxButton>{BoxButton::ok}));
  EXPECT_EQ(boxes.shown[1].text, "Sure?");
  EXPECT_EQ(boxes.shown[1].icon, BoxIcon::question);
  EXPECT_EQ(boxes.shown[1].buttons, (std::vector<BoxButton>{BoxButton::yes, BoxButton::no}));
}

}  // namespace
}  // namespace kestra
