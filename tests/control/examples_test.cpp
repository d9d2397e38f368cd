#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "base/fields.h"
#include "base/lines.h"
#include "control/record_reader.h"
#include "control/record_writer.h"

// Every control file of examples/ is exactly what the writer makes of its fields.
namespace kestra {
namespace {

std::vector<std::filesystem::path> exampleFiles() {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(KESTRA_SOURCE_DIR "/examples")) {
    if (entry.path().extension() == ".KSC") files.push_back(entry.path());
  }
  return files;
}

std::string readFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string_view wordAt(const ControlRun& run, std::string_view keyword, std::size_t field) {
  for (const ControlRecord& record : run.records) {
    if (record.keyword == keyword) return record.fields[field].text();
  }
  return {};
}

// The line of DWNSTREAM does not tell its layout; the options do.
const RecordLayout& layoutOf(const ControlRun& run, const ControlRecord& record) {
  if (record.layout->keyword != "DWNSTREAM") return *record.layout;
  const std::string_view surface = wordAt(run, "OPTION", 1);
  if (surface == "EARTH") return *record.layout;
  if (surface == "RIPRAP") return *findRecord("DWNSTREAM RIPRAP");
  const bool breaches = wordAt(run, "HCMODEL", 0) != "";
  return *findRecord(breaches ? "DWNSTREAM BARE BREACH" : "DWNSTREAM BARE");
}

std::string composeAgain(const ControlRun& run, const ControlRecord& record) {
  const RecordLayout& layout = layoutOf(run, record);
  std::string text = composeRecord(layout, givenValues(takeApart(layout, record.line)));
  text += kCrLf;
  if (!layout.table) return text;
  LineReader rows(record.rows);
  std::string_view row;
  while (rows.next(row)) {
    appendRow(text, layout, givenValues(takeApartRow(layout, row)));
    text += kCrLf;
  }
  return text.append(kTableEnd).append(kCrLf);
}

TEST(Examples, areThere) {
  EXPECT_FALSE(exampleFiles().empty());
}

TEST(Examples, holdOneMainRunAndNothingUnknown) {
  for (const auto& path : exampleFiles()) {
    const std::string text = readFile(path);
    const std::vector<ControlRun> runs = readControlRecords(text);
    ASSERT_EQ(runs.size(), 1U) << path;
    EXPECT_TRUE(runs[0].ended) << path;
    EXPECT_TRUE(runs[0].unknown.empty()) << path;
  }
}

TEST(Examples, areComposedAgainToTheSameBytes) {
  for (const auto& path : exampleFiles()) {
    const std::string text = readFile(path);
    std::string again;
    for (const ControlRun& run : readControlRecords(text)) {
      for (const ControlRecord& record : run.records) again += composeAgain(run, record);
    }
    EXPECT_EQ(again, text) << path;
  }
}

TEST(Examples, haveTheRecordsInTheOrderOfTheCatalogue) {
  for (const auto& path : exampleFiles()) {
    const std::string text = readFile(path);
    const std::vector<ControlRun> runs = readControlRecords(text);
    const RecordLayout* last = recordsOf(RunKind::main).data();
    for (const ControlRecord& record : runs.at(0).records) {
      EXPECT_GE(record.layout, last) << path << ": " << record.line;
      last = record.layout;
    }
  }
}

}  // namespace
}  // namespace kestra
