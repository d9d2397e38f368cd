#include "platform/ini_text.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

using namespace std::string_literals;

struct ReadCase {
  std::string line;  // below [S]
  std::string key;   // "" with value "none": the line means nothing
  std::string value;
};

TEST(ReadIni, readsWhatCanBeRead) {
  const std::vector<ReadCase> cases = {
      {"Left=120", "Left", "120"},
      {"  Left \t=  120  ", "Left", "120"},
      {"path=C:\\new\\table", "path", "C:\\new\\table"},
      {"k=", "k", ""},
      {"k=a=b", "k", "a=b"},
      {"k=a ; no comment", "k", "a ; no comment"},
      {"k=say \"hi\"", "k", "say \"hi\""},
      {"k=\" blanks \"", "k", " blanks "},
      {"k=\"\\\"\\\\\\n\\r\\t\"  ", "k", "\"\\\n\r\t"},
      {"\"a=b\"=1", "a=b", "1"},
      {"\"\"=1", "", "1"},
      {"k=\"unfinished", "k", "\"unfinished"},
      {"k=\"x\" behind", "k", "\"x\" behind"},
      {"k=\"C:\\dir\"", "k", "\"C:\\dir\""},
      {"k=\"\\", "k", "\"\\"},
      {"\"k=1", "\"k", "1"},
      {"\"k\" x=1", "\"k\" x", "1"},
      {"k=\xFF\xC3", "k", "\xFF\xC3"},
      {"; k=1", "", "none"},
      {"  # k=1", "", "none"},
      {"=1", "", "none"},
      {"no equals sign", "", "none"},
      {"", "", "none"},
  };
  for (const ReadCase& c : cases) {
    for (const char* end : {"\n", "\r\n", ""}) {
      SCOPED_TRACE(c.line);
      const IniValues wanted = c.value == "none" ? IniValues() : IniValues{{iniName("S", c.key), c.value}};
      EXPECT_EQ(readIni("[S]\r\n" + c.line + end), wanted);
    }
  }
}

TEST(ReadIni, readsSectionLines) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"[S]", "S"},         {"  [ S ]  ", "S"},  {"[S", "S"}, {"[S] ; why", "S"}, {"[a b]", "a b"},
      {"[\"a]b\"]", "a]b"}, {"[\"q\" ] x", "q"}, {"[]", ""},  {"[\"\"]", ""},     {"[\"half]", "\"half"}};
  for (const auto& [line, section] : cases) {
    EXPECT_EQ(readIni(line + "\nk=1\n"), (IniValues{{iniName(section, "k"), "1"}})) << line;
  }
}

TEST(ReadIni, takesTheFirstOfSeveralAndPassesOverAByteOrderMark) {
  EXPECT_EQ(readIni("\xEF\xBB\xBF[S]\nk=1\nK=2\n[T]\nk=3\n[s]\nk=4\nnew=5\n"),
            (IniValues{{iniName("S", "k"), "1"}, {iniName("T", "k"), "3"}, {iniName("S", "new"), "5"}}));
  EXPECT_EQ(readIni("\xEF\xBB\xBFk=1\n[]\nk=2\n"), (IniValues{{iniName("", "k"), "1"}}));
  EXPECT_EQ(readIni(""), IniValues());
  EXPECT_EQ(readIni("\0\x1a\xff"s), IniValues());
}

struct SetCase {
  std::string before;
  std::string section;
  std::string key;
  std::string value;
  std::string after;
};

TEST(SetIniValue, changesItsOwnLineAndNoOther) {
  const std::string foreign = "; mine\n\n[Other]\nk = 1\nrubbish\n[S]\r\n  K =  old ; x\r\nz=\" \"\n\n\n[S]\nk=again";
  const std::vector<SetCase> cases = {
      {"", "S", "k", "v", "[S]\r\nk=v\r\n"},
      {"", "", "k", "v", "k=v\r\n"},
      {"\xEF\xBB\xBF", "S", "k", "v", "\xEF\xBB\xBF[S]\r\nk=v\r\n"},
      {"\xEF\xBB\xBFk=1\n", "", "k", "2", "\xEF\xBB\xBFk=2\r\n"},
      {"[T]\na=1", "S", "k", "v", "[T]\na=1\r\n\r\n[S]\r\nk=v\r\n"},
      {"[S]\na=1", "S", "k", "v", "[S]\na=1\r\nk=v\r\n"},
      {"[S]\na=1\n; end\n\n\n[T]\n", "s", "k", "v", "[S]\na=1\n; end\nk=v\r\n\n\n[T]\n"},
      {"[S]\n[T]\n[S]\na=1\n", "S", "k", "v", "[S]\nk=v\r\n[T]\n[S]\na=1\n"},
      {"[S]\n[T]\n[S]\nk=1\n", "S", "k", "v", "[S]\n[T]\n[S]\nk=v\r\n"},
      {"; top\n[S]\n", "", "k", "v", "; top\nk=v\r\n[S]\n"},
      {foreign, "s", "k", "new", "; mine\n\n[Other]\nk = 1\nrubbish\n[S]\r\nk=new\r\nz=\" \"\n\n\n[S]\nk=again"},
      {foreign, "other", "k", "new",
       "; mine\n\n[Other]\nk=new\r\nrubbish\n[S]\r\n  K =  old ; x\r\nz=\" \"\n\n\n[S]\nk=again"},
  };
  for (const SetCase& c : cases) {
    EXPECT_EQ(setIniValue(c.before, c.section, c.key, c.value), c.after) << c.before;
  }
}

TEST(SetIniValue, quotesOnlyWhatWouldNotBeReadBack) {
  const std::vector<std::pair<std::string, std::string>> values = {{"C:\\new\\table", "C:\\new\\table"},
                                                                   {"", ""},
                                                                   {"a \"b\" = c;", "a \"b\" = c;"},
                                                                   {"D\xC3\xA4mme \xFF", "D\xC3\xA4mme \xFF"},
                                                                   {" a", "\" a\""},
                                                                   {"a ", "\"a \""},
                                                                   {"\"a\"", "\"\\\"a\\\"\""},
                                                                   {"a\nb\r\t\\", "\"a\\nb\\r\\t\\\\\""},
                                                                   {"a\0b"s, "\"a\0b\""s},
                                                                   {"\x7f", "\"\x7f\""}};
  for (const auto& [value, written] : values) {
    EXPECT_EQ(setIniValue("", "", "k", value), "k=" + written + "\r\n");
  }
  const std::vector<std::pair<std::string, std::string>> keys = {
      {"a b]", "a b]"}, {"", "\"\""},     {"a=b", "\"a=b\""},   {"[a", "\"[a\""},
      {";a", "\";a\""}, {"#a", "\"#a\""}, {"\"a", "\"\\\"a\""}, {"\xEF\xBB\xBF", "\"\xEF\xBB\xBF\""}};
  for (const auto& [key, written] : keys) {
    EXPECT_EQ(setIniValue("", "", key, "v"), written + "=v\r\n");
  }
  EXPECT_EQ(setIniValue("", "a]b", "k", "v"), "[\"a]b\"]\r\nk=v\r\n");
  EXPECT_EQ(setIniValue("", " a", "k", "v"), "[\" a\"]\r\nk=v\r\n");
}

}  // namespace
}  // namespace kestra
