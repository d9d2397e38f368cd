#include "control/record_writer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestra {
namespace {

using Texts = std::vector<std::string_view>;

struct RecordCase {
  const char* id;
  Texts values;
  const char* line;
};

class ComposeRecord : public testing::TestWithParam<RecordCase> {};

TEST_P(ComposeRecord, putsEachValueIntoItsColumns) {
  const RecordLayout* record = findRecord(GetParam().id);
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(composeRecord(*record, GetParam().values), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    Records, ComposeRecord,
    testing::Values(
        RecordCase{"KESTRA", {"Mill Brook"}, "KESTRA    01/01/2009Mill Brook"},
        RecordCase{"KESTRA", {""}, "KESTRA    01/01/2009"},
        RecordCase{"OPTION", {"SIMPLE", "EARTH"}, "OPTION    SIMPLE    EARTH     "},
        RecordCase{"OPTION", {"COEFF", "BARESOIL", "NOPS"}, "OPTION    COEFF     BARESOIL  NOPS      "},
        RecordCase{"OPTION NOBREACH", {"SIMPLE", "RIPRAP", "NOPS"}, "OPTION    SIMPLE    RIPRAP    NOPS      NOBREACH"},
        RecordCase{"OPTION NOBREACH", {"SIMPLE", "RIPRAP", ""}, "OPTION    SIMPLE    RIPRAP              NOBREACH"},
        RecordCase{"OPTION DRAWDOWN",
                   {"SIMPLE", "EARTH", "", "85", "PERCENT", "240"},
                   "OPTION    SIMPLE    EARTH               DRAWDOWN  85        PERCENT   240"},
        RecordCase{"COMMENT", {"a word "}, "*         a word "}, RecordCase{"COMMENT", {""}, "*         "},
        RecordCase{
            "HCMODEL 1", {"0.8", "0.05", "0.04"}, "HCMODEL   1                   0.8                 0.05      0.04"},
        RecordCase{
            "HCMODEL 2", {"100", "0.8", "700", "0.05"}, "HCMODEL   2         100       0.8       700       0.05"},
        RecordCase{"HYD C", {"storm", "0.25", "0", "1"}, "HYD       storm     0.25      0         1C        "},
        RecordCase{"HYD V", {"storm", "0.25", "0", "0"}, "HYD       storm     0.25      0         0V        "},
        RecordCase{"STROUTE", {"1012", "1000", "CFS"}, "STROUTE   1012      1000      CFS"},
        RecordCase{"STROUTE", {"1012", "1000", "FEET"}, "STROUTE   1012      1000      FEET"},
        RecordCase{"STRUCTURE", {"pond"}, "STRUCTURE pond      "},
        RecordCase{"UPSTREAM", {"3", "5.6"}, "UPSTREAM  3         5.6"},
        RecordCase{"DAMCREST", {"12", "5.6", "2.65"}, "DAMCREST  12        5.6       2.65      "},
        RecordCase{"DWNSTREAM EARTH",
                   {"2.5", "5.6", "0.7", "1", "12", "0.002"},
                   "DWNSTREAM 2.5       5.6       0.7       1         12        0.002"},
        RecordCase{"DWNSTREAM RIPRAP",
                   {"2.5", "1.8", "0.5", "1.5", "0.4"},
                   "DWNSTREAM 2.5       1.8       0.5       1.5       0.4       "},
        RecordCase{"DWNSTREAM BARE BREACH", {"2.5", "0.02"}, "DWNSTREAM 2.5       0.02"},
        RecordCase{"DWNSTREAM BARE", {"2.5", "0.02"}, "DWNSTREAM 2.5       0.02      "},
        RecordCase{"CRESTPRFL", {}, "CRESTPRFL"}, RecordCase{"TAILWATER", {}, "TAILWATER"},
        RecordCase{"PSpINLET", {"0.8", "9", "1012"}, "PSpINLET  0.8       9         1012      "},
        RecordCase{"PSpDATA",
                   {"1", "123456", "2", "", "0.013", "1002", "1000", "SC"},
                   "PSpDATA   1    123452                   0.013     1002      1000      SC"},
        RecordCase{"PSpHOOD",
                   {"60", "", "", "1000", "3.1", "0.6", "S"},
                   "PSpHOOD   60                            1000      3.1       0.6       S"},
        RecordCase{"ASSURFACE",
                   {"1", "East bywash", "3", "12345678901", "2", "0.5", "200"},
                   "ASSURFACE 1East bywa3         12345678920.5       200"},
        RecordCase{"ASRATING", {"2", "East", "0"}, "ASRATING  2East     0"}, RecordCase{"OUTPUT", {}, "OUTPUT    ALL"},
        RecordCase{"ENDTABLE", {}, "ENDTABLE"}, RecordCase{"ENDRUN", {}, "ENDRUN"},
        RecordCase{"STRUCTURE", {"\xC3\xA4\xC3\xB6\xC3\xBC pond 123"}, "STRUCTURE \xC3\xA4\xC3\xB6\xC3\xBC pond 1"},
        RecordCase{"STRUCTURE", {"h\xF6he"}, "STRUCTURE h\xF6he      "}));

class ComposeRow : public testing::TestWithParam<RecordCase> {};

TEST_P(ComposeRow, leavesTheKeywordBlank) {
  EXPECT_EQ(composeRow(*findRecord(GetParam().id), GetParam().values), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ComposeRow,
    testing::Values(
        RecordCase{"HYD V", {"0.5", "120"}, "          0.5       120       "},
        RecordCase{
            "STRUCTURE", {"1000", "", "0", "0.5"}, "                    1000                0         0.5       "},
        RecordCase{"CRESTPRFL", {"0", "1024"}, "          0         1024      "},
        RecordCase{"HYD C",
                   {"0", "123456.789", "1234567.1", "", ""},
                   "                    0         123456.78 1234567                       "},
        RecordCase{"HYD C", {"1234567890", "12345678901", "5"}, "                    123456789012345678905         "},
        RecordCase{"ASSURFACE",
                   {"0", "120", "5.6", "0.7", "1", "1"},
                   "          0         120       5.6       0.7       1         1         "}));

struct TextCase {
  const char* text;
  const char* result;
};

class HydrographValue : public testing::TestWithParam<TextCase> {};

TEST_P(HydrographValue, isTenWideAndCutByThePlaceOfItsPoint) {
  EXPECT_EQ(hydrographValue(GetParam().text), GetParam().result);
  EXPECT_EQ(hydrographValue(GetParam().result), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Values, HydrographValue,
                         testing::Values(TextCase{"123456.789", "123456.78 "}, TextCase{"1234567.1", "1234567   "},
                                         TextCase{"1234567.", "1234567   "}, TextCase{"12345678.9", "12345678. "},
                                         TextCase{"123456789.", "123456789 "}, TextCase{"1234567890.5", "1234567890"},
                                         TextCase{"1234567890", "1234567890"}, TextCase{"1.5", "1.5       "},
                                         TextCase{"12345678901", "1234567890"}, TextCase{"", "          "},
                                         TextCase{" 12", " 12       "}, TextCase{".123456789", ".12345678 "},
                                         TextCase{"\xC3\xB6"
                                                  "23456.789",
                                                  "\xC3\xB6"
                                                  "23456.78 "}));

struct CommentCase {
  std::string text;
  std::vector<std::string> lines;
};

class WrapComment : public testing::TestWithParam<CommentCase> {};

TEST_P(WrapComment, breaksAtLineFeedsAndBlanks) {
  EXPECT_EQ(wrapComment(GetParam().text), GetParam().lines);
}

const std::string kSixty(60, 'x');
const std::string kWords = std::string(40, 'x') + " " + std::string(19, 'y');

INSTANTIATE_TEST_SUITE_P(
    Texts, WrapComment,
    testing::Values(CommentCase{"", {}}, CommentCase{"one", {"one"}}, CommentCase{"one\r\ntwo", {"one", "two"}},
                    CommentCase{"one\r\n", {"one"}}, CommentCase{"\r\n", {""}}, CommentCase{"\n", {""}},
                    CommentCase{"a\n\r\nb", {"", "", "b"}}, CommentCase{"lone\nb", {"lon", "b"}},
                    CommentCase{kSixty + "x", {kSixty, "x"}}, CommentCase{kSixty, {kSixty}},
                    CommentCase{kSixty + "\r\n", {kSixty, ""}},
                    CommentCase{std::string(59, 'x') + "\r\nb", {std::string(59, 'x'), "b"}},
                    CommentCase{kWords, {std::string(40, 'x') + " ", std::string(19, 'y')}},
                    CommentCase{kWords + "\r\nb", {std::string(40, 'x') + " ", std::string(19, 'y'), "b"}},
                    CommentCase{"a b", {"a b"}}, CommentCase{std::string(60, ' ') + "z", {std::string(60, ' '), "z"}},
                    CommentCase{" " + kSixty, {" ", kSixty}},
                    CommentCase{"\xC3\xB6" + kSixty, {"\xC3\xB6" + std::string(59, 'x'), "x"}}));

struct LossCase {
  const char* id;
  const char* field;
  const char* value;
  const char* lost;
};

class LostText : public testing::TestWithParam<LossCase> {};

TEST_P(LostText, isWhatNoReaderGetsBack) {
  const RecordLayout& record = *findRecord(GetParam().id);
  const FieldLayout* field = findField(record.fields, GetParam().field);
  if (field == nullptr) field = findField(record.table->fields, GetParam().field);
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(lostText(*field, GetParam().value), GetParam().lost);
}

INSTANTIATE_TEST_SUITE_P(
    Values, LostText,
    testing::Values(
        LossCase{"PSpDATA", "length", "123456", "6"}, LossCase{"PSpDATA", "length", "12345", ""},
        LossCase{"DAMCREST", "width", "1.23456789012", "012"}, LossCase{"DAMCREST", "width", "1         ", ""},
        LossCase{"DAMCREST", "width", "1                ", ""}, LossCase{"UPSTREAM", "retardance", "12345678901", "1"},
        LossCase{"HYD C", "discharge 1", "123456.789", "9"}, LossCase{"HYD C", "discharge 2", "1234567.1", ".1"},
        LossCase{"HYD C", "discharge 3", "1.5", ""}, LossCase{"HYD C", "discharge 4", "12345678901", "1"},
        LossCase{"HYD C", "discharge 5", "", ""}, LossCase{"ASSURFACE", "name", "Sp\xC3\xA4ter \xC3\x96stl", "tl"}));

TEST(CutValues, nameTheFieldsThatLoseTheirTail) {
  const RecordLayout& record = *findRecord("OPTION DRAWDOWN");
  const Texts values = {"SIMPLE", "EARTH", "", "1012.12345678", "FEET", "240.00000001"};
  const std::vector<CutValue> cuts = cutValues(record.fields, values);
  ASSERT_EQ(cuts.size(), 2U);
  EXPECT_EQ(cuts[0].field->name, "drawdown level");
  EXPECT_EQ(cuts[0].lost, "678");
  EXPECT_EQ(cuts[1].field->name, "drawdown time");
  EXPECT_EQ(cuts[1].value, "240.00000001");
  EXPECT_EQ(cuts[1].lost, "01");
  EXPECT_TRUE(cutValues(record.fields, Texts{"SIMPLE"}).empty());
}

}  // namespace
}  // namespace kestra
