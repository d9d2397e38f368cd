#include "tools/frm_output.h"

#include <gtest/gtest.h>

#include <array>

#include "base/runtime_fault.h"
#include "screens/frm_project_information.h"
#include "support/input_desk.h"

namespace kestra {
namespace {

struct Output : testing::Test {
  InputDesk desk;
  frmProjectInformation project{desk.context};
  frmOutput output{project};
  std::array<std::string, 4> runs = {"a", "b", "c", "d"};

  Output() {
    for (Screen* screen : std::initializer_list<Screen*>{&project, &output}) desk.host.enter(*screen);
  }
  ~Output() override { desk.history.clear(); }

  void take(std::string text) {
    output.GenerateTopoGraph(text, runs);
    EXPECT_EQ(text, "");
  }
};

// A record with texts at their columns, from 1.
std::string record(std::initializer_list<std::pair<std::size_t, const char*>> texts) {
  std::string line;
  for (const auto& [column, text] : texts) {
    line.resize(column - 1, ' ');
    line += text;
  }
  return line + "\r\n";
}

TEST_F(Output, onlyEmptiesAControlTextOfADam) {
  project.txtWatershedID.setText("kept");
  take("KESTRA    01/01/2009Pond\r\nSTRUCTURE Pond\r\nENDTABLE\r\nENDRUN\r\n");
  EXPECT_EQ(runs, (std::array<std::string, 4>{"a", "b", "c", "d"}));
  EXPECT_EQ(project.txtWatershedID.text(), "kept");
  EXPECT_TRUE(output.elements().empty());
}

TEST_F(Output, takesTheTitleOfAJobFromItsFirstLineThatIsNotBlank) {
  const std::pair<const char*, const char*> table[] = {
      {"QUIL      01/01/2009Spillway of Pond\r\n", "Spillway of Pond"},
      {"\r\n   \r\nTORVE     01/01/2009 T\r\nQUIL      01/01/2009No\r\n", " T"},
      {"VERN2     01/01/2009V", "V"},
      {"QUIL\r\n", ""},
      {"KESTRA    01/01/2009No\r\nQUIL      01/01/2009No\r\n", "before"},
      {"", "before"}};
  for (const auto& [text, title] : table) {
    project.txtWatershedID.setText("before");
    take(text);
    EXPECT_EQ(project.txtWatershedID.text(), title) << text;
  }
}

TEST_F(Output, givesEachPartOfAJobToARunAndKeepsWhatItIs) {
  const std::string first = record({{1, "SAVMOV"}, {11, "0"}, {71, "Upper"}});
  const std::string structure = record({{1, "STRUCTURE"}, {11, "7"}});
  const std::string second = record({{1, "SAVMOV"}, {11, "31"}, {71, "Lower creek"}});
  const std::string watershed = record({{1, "WSDATA"}, {11, "4"}, {14, "12"}});
  const std::string third = record({{1, "SAVMOV"}, {11, "101"}});
  const std::string other = record({{1, "SAVMOV"}, {11, "5"}, {71, "Nothing new"}});
  take(record({{1, "TORVE"}, {21, "Job"}}) + first + structure + second + watershed + third + other + "ENDRUN");
  EXPECT_EQ(runs,
            (std::array<std::string, 4>{first + structure, second + watershed, third + other + "ENDRUN\r\n", "d"}));
  EXPECT_EQ(output.elements(), (std::vector<frmOutput::Element>{
                                   {0, "Upper", "1", "7"}, {31, "Lower creek", "2", "12"}, {101, "", "", ""}}));
  EXPECT_EQ(output.Pop(), 101);
  EXPECT_EQ(output.Pop(), 31);
  EXPECT_EQ(output.Pop(), 0);
  EXPECT_EQ(output.Pop(), std::nullopt);
}

TEST_F(Output, forgetsTheJobBefore) {
  take(record({{1, "SAVMOV"}, {11, "0"}}));
  take("KESTRA\r\n");
  EXPECT_TRUE(output.elements().empty());
  EXPECT_EQ(output.Pop(), std::nullopt);
}

TEST_F(Output, faultsOnMorePartsThanRuns) {
  std::string text;
  for (int i = 0; i < 5; ++i) text += record({{1, "SAVMOV"}, {11, "0"}});
  EXPECT_THROW(output.GenerateTopoGraph(text, runs), RuntimeFault);
}

TEST_F(Output, keepsAHundredNumbersAndNoMore) {
  for (std::int16_t value = 1; value <= 100; ++value) EXPECT_TRUE(output.Push(value));
  EXPECT_FALSE(output.Push(101));
  for (std::int16_t value = 100; value >= 1; --value) EXPECT_EQ(output.Pop(), value);
  EXPECT_EQ(output.Pop(), std::nullopt);
}

}  // namespace
}  // namespace kestra
