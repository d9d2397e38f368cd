#include "controls/text_box.h"

#include <gtest/gtest.h>

#include "controls/test_screen.h"

namespace kestra {
namespace {

void type(TextBox& field, const std::string& keys) {
  for (const char c : keys) field.userKey({static_cast<char32_t>(c), {}});
}

TEST(TextBox, runsItsHandlerForTheUserAndNotForTheProgram) {
  Stage stage;
  TextBox field(stage.screen, "txtField");
  int changes = 0;
  int edits = 0;
  field.onChange = [&changes] { ++changes; };
  stage.host.onEdited = [&edits](Screen&, Control&) { ++edits; };
  stage.host.enter(stage.screen);
  field.setText("1");
  EXPECT_EQ(changes + edits, 0);
  field.userReplace("2");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(edits, 1);
}

TEST(TextBox, cutsWhatTheUserPutsInToItsLength) {
  Stage stage;
  TextBox field(stage.screen, "txtField", "", 3);
  field.userReplace("\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6");
  EXPECT_EQ(field.text(), "\xC3\xB6\xC3\xB6\xC3\xB6");
  type(field, "x");
  EXPECT_EQ(field.text(), "\xC3\xB6\xC3\xB6\xC3\xB6");
  field.setText("abcd");
  EXPECT_EQ(field.text(), "abcd");
}

TEST(TextBox, takesKeysAtItsEnd) {
  Stage stage;
  TextBox field(stage.screen, "txtField", "1");
  type(field, "2.5\b\b\r");
  EXPECT_EQ(field.text(), "12");
  field.userKey({U'\u00F6', {}});
  EXPECT_EQ(field.text(), "12\xC3\xB6");
  type(field, "\b\b\b\b\b");
  EXPECT_EQ(field.text(), "");
  field.setMultiLine(true);
  type(field, "a\rb");
  EXPECT_EQ(field.text(), "a\r\nb");
}

TEST(TextBox, refusesKeysByItsFilterAndAllOfThemWhenLocked) {
  Stage stage;
  TextBox field(stage.screen, "txtField");
  field.onKeyPress = [](const Key& key) { return key.character != U'x'; };
  type(field, "axb");
  EXPECT_EQ(field.text(), "ab");
  field.setLocked(true);
  type(field, "c");
  field.userReplace("d");
  EXPECT_EQ(field.text(), "ab");
}

}  // namespace
}  // namespace kestra
