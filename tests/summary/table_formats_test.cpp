#include "summary/table_formats.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

// A dam and the highest of its instances; cells with everything that a form has to guard against.
SummaryTable sample() {
  SummaryTable table;
  table.fields = {{SummaryLevel::dam, "Peak, total"}, {SummaryLevel::instance, "Stress"}};
  table.rows = {{"dam", RowType::single, true, {"150.5", ""}},
                {"Bär 1_0", RowType::maximum, false, {"a\tb\r\nc", "say \"7\""}}};
  return table;
}

TEST(ATable, goesIntoAFileCellByCell) {
  const TextGrid grid = gridOfAll(sample());
  EXPECT_EQ(tabText(grid),
            "Name\tType\tInput\tPeak, total\tStress\r\n"
            "dam\tSingle Instance\tinput changed since this run\t150.5\t\r\n"
            "Bär 1_0\tMax.\t\ta b  c\tsay \"7\"\r\n");
  EXPECT_EQ(csvText(grid),
            "Name,Type,Input,\"Peak, total\",Stress\r\n"
            "dam,Single Instance,input changed since this run,150.5,\r\n"
            "Bär 1_0,Max.,,\"a\tb\r\nc\",\"say \"\"7\"\"\"\r\n");
  EXPECT_EQ(tabText(turned(grid)).substr(0, 19), "Name\tdam\tBär 1_0\r\n");
}

TEST(ATable, standsInColumnsOnATerminal) {
  EXPECT_EQ(textTable(gridOfAll(sample())),
            "Name     Type             Input                         Peak, total  Stress\n"
            "dam      Single Instance  input changed since this run  150.5\n"
            "Bär 1_0  Max.                                           a b  c       say \"7\"\n");
  EXPECT_EQ(textTable(gridOfAll({})), "Name  Type  Input\n");
}

TEST(ATable, isAListOfObjects) {
  EXPECT_EQ(jsonText(sample()),
            "[\n"
            "  {\n"
            "    \"name\": \"dam\",\n"
            "    \"type\": \"Single Instance\",\n"
            "    \"condensed\": false,\n"
            "    \"inputChanged\": true,\n"
            "    \"dam\": {\n"
            "      \"Peak, total\": \"150.5\"\n"
            "    },\n"
            "    \"instance\": {\n"
            "      \"Stress\": \"\"\n"
            "    }\n"
            "  },\n"
            "  {\n"
            "    \"name\": \"Bär 1_0\",\n"
            "    \"type\": \"Max.\",\n"
            "    \"condensed\": true,\n"
            "    \"inputChanged\": false,\n"
            "    \"dam\": {\n"
            "      \"Peak, total\": \"a\\tb\\r\\nc\"\n"
            "    },\n"
            "    \"instance\": {\n"
            "      \"Stress\": \"say \\\"7\\\"\"\n"
            "    }\n"
            "  }\n"
            "]\n");
  EXPECT_EQ(jsonText({}), "[]\n");
}

TEST(ATable, ofForeignBytesIsTextAllTheSame) {
  SummaryTable table;
  table.fields = {{SummaryLevel::dam, "\xe9t\xe9"}};
  table.rows = {{"\xff", RowType::mean, false, {std::string("a\0b", 3)}}};
  const std::string json = jsonText(table);
  EXPECT_NE(json.find("\"name\": \"ÿ\""), std::string::npos);
  EXPECT_NE(json.find("\"été\": \"a\\u0000b\""), std::string::npos);
  EXPECT_TRUE(xlsxTable(table));
}

TEST(AWorkbook, isMadeOfAnyTable) {
  SummaryTable wide = sample();
  wide.rows[0].values[0] = std::string(100000, 'x');
  for (const SummaryTable& table : {SummaryTable(), sample(), wide}) {
    const Result<std::string> book = xlsxTable(table);
    ASSERT_TRUE(book);
    EXPECT_EQ(book.value().substr(0, 4), std::string("PK\3\4"));
  }
}

TEST(AFileName, tellsTheFormOfATable) {
  const std::pair<const char*, TableForm> cases[] = {
      {"a.csv", TableForm::csv},  {"a.CSV", TableForm::csv}, {"a.json", TableForm::json}, {"b.Xlsx", TableForm::xlsx},
      {"a.txt", TableForm::tabs}, {"csv", TableForm::tabs},  {"", TableForm::tabs},       {"a.csv.x", TableForm::tabs}};
  for (const auto& [name, form] : cases) EXPECT_EQ(tableForm(name), form) << name;
}

}  // namespace
}  // namespace kestra
