#pragma once

#include <gtest/gtest.h>

#include "platform/settings_store.h"
#include "support/result_matchers.h"

// What every SettingsStore does. A Scene offers settings(), the same store at each call, empty at first.
namespace kestra {

template <class Scene>
class SettingsContract : public testing::Test {
 protected:
  Scene scene;
};
TYPED_TEST_SUITE_P(SettingsContract);

TYPED_TEST_P(SettingsContract, givesTheOtherwiseForWhatIsNotSet) {
  SettingsStore& settings = this->scene.settings();
  EXPECT_EQ(settings.get("S", "k", "otherwise"), "otherwise");
  ASSERT_TRUE(succeeded(settings.set("S", {{"k", ""}})));
  EXPECT_EQ(settings.get("S", "k", "otherwise"), "");
  EXPECT_EQ(settings.get("S", "other", "otherwise"), "otherwise");
  EXPECT_EQ(settings.get("T", "k", "otherwise"), "otherwise");
}

TYPED_TEST_P(SettingsContract, setsSeveralEntriesAtOnceTheLastOfAKeyCounting) {
  SettingsStore& settings = this->scene.settings();
  ASSERT_TRUE(succeeded(settings.set("S", {{"a", "1"}, {"b", "2"}, {"a", "3"}})));
  ASSERT_TRUE(succeeded(settings.set("T", {{"a", "4"}})));
  ASSERT_TRUE(succeeded(settings.set("S", {{"b", "5"}})));
  ASSERT_TRUE(succeeded(settings.set("S", {})));
  EXPECT_EQ(settings.get("S", "a", ""), "3");
  EXPECT_EQ(settings.get("S", "b", ""), "5");
  EXPECT_EQ(settings.get("T", "a", ""), "4");
}

TYPED_TEST_P(SettingsContract, comparesNamesWithoutRegardToTheCaseOfAsciiLetters) {
  SettingsStore& settings = this->scene.settings();
  ASSERT_TRUE(succeeded(settings.set("Window", {{"Left", "1"}, {"\xC3\xA4", "small"}})));
  EXPECT_EQ(settings.get("WINDOW", "left", ""), "1");
  EXPECT_EQ(settings.get("Window", "\xC3\x84", "none"), "none");
  ASSERT_TRUE(succeeded(settings.set("window", {{"LEFT", "2"}})));
  EXPECT_EQ(settings.get("Window", "Left", ""), "2");
}

TYPED_TEST_P(SettingsContract, keepsAnyBytes) {
  std::string all;
  for (int c = 0; c < 256; ++c) all += static_cast<char>(c);
  const std::vector<std::string> texts = {"",
                                          " ",
                                          " both ends ",
                                          "\"",
                                          "\"quoted\"",
                                          "a\"b",
                                          "C:\\new\\table",
                                          "a=b",
                                          "=",
                                          "[x]",
                                          "]",
                                          ";x",
                                          "#x",
                                          "two\r\nlines",
                                          "\t",
                                          "\\",
                                          "\xEF\xBB\xBFx",
                                          "\xFF\xC3",
                                          std::string("a\0b", 3),
                                          all};
  SettingsStore& settings = this->scene.settings();
  for (const std::string& text : texts) {
    ASSERT_TRUE(succeeded(settings.set(text, {{text, text}})));
    ASSERT_TRUE(succeeded(settings.set("values", {{"v" + text, text}})));
  }
  for (const std::string& text : texts) {
    EXPECT_EQ(settings.get(text, text, "none"), text);
    EXPECT_EQ(settings.get("values", "v" + text, "none"), text);
  }
}

REGISTER_TYPED_TEST_SUITE_P(SettingsContract, givesTheOtherwiseForWhatIsNotSet,
                            setsSeveralEntriesAtOnceTheLastOfAKeyCounting,
                            comparesNamesWithoutRegardToTheCaseOfAsciiLetters, keepsAnyBytes);

}  // namespace kestra
