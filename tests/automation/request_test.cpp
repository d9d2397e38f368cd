#include <gtest/gtest.h>

#include <sstream>

#include "automation/driver_desk.h"

namespace kestra {
namespace {

struct Case {
  std::string request;  // as it is sent
  std::string answer;   // whole
};

class Request : public testing::Test {
 protected:
  void expect(const std::vector<Case>& cases) {
    for (const auto& [request, answer] : cases) EXPECT_EQ(desk.driver.answerTo(request), answer) << request;
  }
  DriverDesk desk;
};

TEST_F(Request, thatNamesNothingKnownIsRefusedByItsName) {
  expect({
      {R"({"do":"dance"})", R"({"ok":false,"error":"no verb named \"dance\""})"},
      {R"({"do":""})", R"({"ok":false,"error":"no verb named \"\""})"},
      {R"({"do":"GET"})", R"({"ok":false,"error":"no verb named \"GET\""})"},
      {R"({"do":"get"})", R"({"ok":false,"error":"field \"screen\" is missing"})"},
      {R"({"do":"get","screen":"frmNone","control":"x"})", R"({"ok":false,"error":"no screen named \"frmNone\""})"},
      {R"({"do":"get","screen":"Gallery","control":"x"})", R"({"ok":false,"error":"no screen named \"Gallery\""})"},
      {R"({"do":"get","screen":"gallery"})", R"({"ok":false,"error":"field \"control\" is missing"})"},
      {R"({"do":"click","screen":"gallery","control":"x"})",
       R"({"ok":false,"error":"gallery has no control named \"x\""})"},
      {R"({"do":"controls","screen":"x"})", R"({"ok":false,"error":"no screen named \"x\""})"},
      {R"({"do":"activate","screen":"x"})", R"({"ok":false,"error":"no screen named \"x\""})"},
      {R"({"do":"close"})", R"({"ok":false,"error":"field \"screen\" is missing"})"},
      {R"({"do":"call","name":"Nothing"})", R"({"ok":false,"error":"no operation named \"Nothing\""})"},
      {R"({"do":"call"})", R"({"ok":false,"error":"field \"name\" is missing"})"},
      {R"({"do":"variable","name":"nothing"})", R"({"ok":false,"error":"no variable named \"nothing\""})"},
      {R"({"do":"variable"})", R"({"ok":false,"error":"field \"name\" is missing"})"},
  });
}

TEST_F(Request, withAFieldOfTheWrongTypeIsRefused) {
  expect({
      {R"({})", R"({"ok":false,"error":"field \"do\" is missing"})"},
      {R"({"do":null})", R"({"ok":false,"error":"field \"do\" must be a text"})"},
      {R"({"do":["state"]})", R"({"ok":false,"error":"field \"do\" must be a text"})"},
      {R"({"do":"get","screen":5,"control":"x"})", R"({"ok":false,"error":"field \"screen\" must be a text"})"},
      {R"({"do":"get","screen":"gallery","control":{}})", R"({"ok":false,"error":"field \"control\" must be a text"})"},
      {R"({"do":"clipboard","text":1})", R"({"ok":false,"error":"field \"text\" must be a text"})"},
      {R"({"do":"call","name":"PadField","args":{}})", R"({"ok":false,"error":"field \"args\" must be a list"})"},
      {R"({"do":"state","answers":"Yes"})", R"({"ok":false,"error":"field \"answers\" must be a list"})"},
      {R"({"do":"state","answers":null})", R"({"ok":false,"error":"field \"answers\" must be a list"})"},
  });
}

TEST_F(Request, thatIsNoObjectIsRefused) {
  for (const char* text : {"1", "\"do\"", "null", "true", "[]", R"([{"do":"state"}])", "-0.5e3"}) {
    EXPECT_EQ(desk.driver.answerTo(text), R"({"ok":false,"error":"a request must be a JSON object"})") << text;
  }
}

TEST_F(Request, thatIsNoJsonIsRefusedWithItsColumn) {
  expect({
      {"{", R"({"ok":false,"error":"malformed JSON at column 2"})"},
      {"x", R"({"ok":false,"error":"malformed JSON at column 1"})"},
      {R"({"do":"state"} x)", R"({"ok":false,"error":"malformed JSON at column 16"})"},
      {R"({"do":'state'})", R"({"ok":false,"error":"malformed JSON at column 7"})"},
      {R"({"do":"state",})", R"({"ok":false,"error":"malformed JSON at column 15"})"},
      {"{\"do\":\"\xff\"}", R"({"ok":false,"error":"malformed JSON at column 8"})"},
      {"{\"do\":\"\xc3\"}", R"({"ok":false,"error":"malformed JSON at column 9"})"},
      {"{\"do\":\"a\tb\"}", R"({"ok":false,"error":"malformed JSON at column 9"})"},
      {"{\"do\":\"\\ud800\"}", R"({"ok":false,"error":"malformed JSON at column 14"})"},
      {std::string("{\"do\":\"\0\"}", 10), R"({"ok":false,"error":"malformed JSON at column 8"})"},
      {R"({"do":NaN})", R"({"ok":false,"error":"malformed JSON at column 7"})"},
      {R"({"id":1e999})", R"({"ok":false,"error":"malformed JSON: a number is out of range"})"},
      {"", R"({"ok":false,"error":"malformed JSON at column 1"})"},
  });
}

TEST_F(Request, mayNestAHundredLevelsAndNoMore) {
  const auto nested = [](int levels) {
    const auto count = static_cast<std::size_t>(levels - 1);
    return R"({"do":"screens","id":)" + std::string(count, '[') + std::string(count, ']') + "}";
  };
  EXPECT_EQ(desk.driver.answerTo(nested(101)), R"({"ok":false,"error":"the request is nested too deeply"})");
  EXPECT_TRUE(desk.driver.answerTo(nested(100)).starts_with(R"({"id":[[[)"));
  EXPECT_EQ(desk.driver.answerTo(std::string(1U << 20U, '[')),
            R"({"ok":false,"error":"the request is nested too deeply"})");
  const std::string brackets(200, '[');
  EXPECT_EQ(desk.driver.answerTo(R"({"do":"clipboard","text":"\"\\)" + brackets + "\"}"),
            R"({"ok":true,"value":"\"\\)" + brackets + "\"}");
}

TEST_F(Request, hasItsIdRepeatedWhateverItIs) {
  for (const char* id : {"1", "-1", "1.5", "18446744073709551615", "\"a\\n\"", "null", "true", "[1,{\"a\":[]}]",
                         R"({"b":1,"a":2})", "\"\""}) {
    EXPECT_EQ(desk.driver.answerTo(R"({"do":"clipboard","id":)" + std::string(id) + "}"),
              R"({"id":)" + std::string(id) + R"(,"ok":true,"value":""})");
  }
  EXPECT_EQ(desk.driver.answerTo(R"({"id":7,"do":"x"})"), R"({"id":7,"ok":false,"error":"no verb named \"x\""})");
}

TEST_F(Request, maySayMoreThanIsAskedAndTheLastOfTwoFieldsCounts) {
  expect({{R"({"do":"clipboard","other":[1],"text":"a","text":"b"})", R"({"ok":true,"value":"b"})"}});
}

TEST_F(Request, linesAreAnsweredInOrderAndBlankOnesPassedOver) {
  std::istringstream in("\n  \t\r\n{\"do\":\"clipboard\",\"text\":\"a\"}\r\n{\n\n{\"do\":\"clipboard\"}");
  std::ostringstream out;
  desk.driver.run(in, out);
  EXPECT_EQ(out.str(),
            "{\"ok\":true,\"value\":\"a\"}\n{\"ok\":false,\"error\":\"malformed JSON at column 2\"}\n"
            "{\"ok\":true,\"value\":\"a\"}\n");
  EXPECT_FALSE(desk.driver.finished());
}

TEST_F(Request, linesBehindTheEndAreNotAnswered) {
  for (const char* last : {R"({"do":"quit"})", R"({"do":"click","screen":"frmTopScreen","control":"mnuExit"})"}) {
    DriverDesk other;
    std::istringstream in(std::string(last) + "\n{\"do\":\"state\"}\n");
    std::ostringstream out;
    other.driver.run(in, out);
    EXPECT_EQ(out.str(), "{\"ok\":true,\"value\":null}\n");
    EXPECT_TRUE(other.driver.finished());
  }
}

TEST_F(Request, linesAreNoLongerReadWhenTheAnswerIsNotTaken) {
  std::istringstream in("{\"do\":\"clipboard\",\"text\":\"a\"}\n{\"do\":\"clipboard\",\"text\":\"b\"}\n");
  struct FullBuffer : std::streambuf {
  } full;
  std::ostream out(&full);
  desk.driver.run(in, out);
  EXPECT_EQ(desk.clipboard.text(), "a");
}

TEST_F(Request, linesThatAreTooLongAreRefusedAndTheNextOneIsRead) {
  for (const char filling : {'[', 'x'}) {
    std::istringstream in(std::string(Driver::kLongestLine + 5, filling) + "x\n{\"do\":\"clipboard\"}\n");
    std::ostringstream out;
    desk.driver.run(in, out);
    EXPECT_EQ(out.str(),
              "{\"ok\":false,\"error\":\"the request is longer than 64 MiB\"}\n{\"ok\":true,\"value\":\"\"}\n");
  }
}

}  // namespace
}  // namespace kestra
