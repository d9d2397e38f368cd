#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "base/fields.h"
#include "base/lines.h"
#include "control/record_reader.h"
#include "control/record_writer.h"
#include "support/control_desk.h"

// Every control file of examples/ is exactly what the writer makes of its fields, and what the screens make of it.
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
  EXPECT_GE(exampleFiles().size(), 10U);
}

TEST(Examples, holdWholeRunsAndNothingUnknown) {
  for (const auto& path : exampleFiles()) {
    const std::string text = readFile(path);
    const std::vector<ControlRun> runs = readControlRecords(text);
    ASSERT_FALSE(runs.empty()) << path;
    for (const ControlRun& run : runs) {
      EXPECT_TRUE(run.ended) << path;
      EXPECT_TRUE(run.unknown.empty()) << path;
    }
  }
}

TEST(Examples, haveMainRunsThatAreComposedAgainToTheSameBytes) {
  for (const auto& path : exampleFiles()) {
    const std::string text = readFile(path);
    const std::vector<ControlRun> runs = readControlRecords(text);
    std::string again;
    for (const ControlRecord& record : runs.at(0).records) again += composeAgain(runs[0], record);
    EXPECT_EQ(again, runs[0].text) << path;
  }
}

// Opened and built again under its own name, without a companion.
std::string builtAgain(const std::filesystem::path& path) {
  ControlDesk desk;
  desk.files.put("/p/dam.KSC", readFile(path));
  desk.control.ReadControlFile("/p/dam.KSC");
  EXPECT_TRUE(desk.takeBoxes().empty()) << path;
  EXPECT_EQ(desk.control.BuildControlText(path.filename()), -1) << path;
  EXPECT_TRUE(desk.control.cutFields().empty()) << path;
  std::string text = desk.control.texts.controlText;
  for (const std::string& run : desk.control.texts.auxRunText) text += run;
  return text;
}

TEST(Examples, areOpenedAndBuiltAgainToTheSameBytes) {
  for (const auto& path : exampleFiles()) EXPECT_EQ(builtAgain(path), readFile(path)) << path;
}

// Between them they show what a control file can say.
TEST(Examples, haveEveryRecordOfTheCatalogueThatAFileOfItsOwnCanHave) {
  std::set<std::string_view> seen;
  std::vector<std::string> texts;
  for (const auto& path : exampleFiles()) texts.push_back(readFile(path));
  for (const std::string& text : texts) {
    for (const ControlRun& run : readControlRecords(text)) {
      for (const ControlRecord& record : run.records) {
        seen.insert(run.kind == RunKind::main ? layoutOf(run, record).id : record.layout->id);
      }
    }
  }
  for (const RunKind kind : {RunKind::main, RunKind::spillway}) {
    for (const RecordLayout& record : recordsOf(kind)) {
      const bool needsAnotherFile = record.id == "MODIFIED";  // the output of a run
      const bool expected = record.written && record.id != kTableEnd && !needsAnotherFile;
      EXPECT_EQ(seen.contains(record.id) || !expected, true) << record.id;
    }
  }
}

TEST(Examples, haveEachAPage) {
  for (const auto& path : exampleFiles()) {
    EXPECT_FALSE(readFile(std::filesystem::path(path).replace_extension(".md")).empty()) << path;
  }
}

// The spillways follow each other whether they are told by surface or by rating.
const RecordLayout* placeOf(const RecordLayout* layout) {
  return layout->id == "ASRATING" ? findRecord("ASSURFACE") : layout;
}

TEST(Examples, haveTheRecordsInTheOrderOfTheCatalogue) {
  for (const auto& path : exampleFiles()) {
    const std::string text = readFile(path);
    for (const ControlRun& run : readControlRecords(text)) {
      const RecordLayout* last = recordsOf(run.kind).data();
      for (const ControlRecord& record : run.records) {
        EXPECT_GE(placeOf(record.layout), last) << path << ": " << record.line;
        last = placeOf(record.layout);
      }
    }
  }
}

}  // namespace
}  // namespace kestra
