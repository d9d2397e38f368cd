#include "automation/operations.h"
#include "base/fields.h"
#include "base/lines.h"
#include "control/record_reader.h"
#include "control/record_writer.h"

namespace kestra {
namespace {

Json textsOf(const FieldTexts& fields) {
  Json texts = Json::object();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const FieldLayout& layout = fields.layout(i);
    if (!layout.literal && fields[i].reached())
      texts[layout.name] = layout.keepsBlanks ? fields[i].raw : fields[i].text();
  }
  return texts;
}

Json rowsOf(const ControlRecord& record) {
  Json rows = Json::array();
  LineReader lines(record.rows);
  std::string_view line;
  while (lines.next(line)) rows.push_back(textsOf(takeApartRow(*record.layout, line)));
  return rows;
}

Json describeRecord(const ControlRecord& record) {
  Json out = {{"line", record.lineNumber}, {"record", record.layout->id}, {"fields", textsOf(record.fields)}};
  if (record.layout->table) out["rows"] = rowsOf(record);
  return out;
}

Json describeRun(const ControlRun& run) {
  Json records = Json::array();
  for (const ControlRecord& record : run.records) records.push_back(describeRecord(record));
  Json unknown = Json::array();
  for (const UnknownLine& line : run.unknown) unknown.push_back({{"line", line.lineNumber}, {"text", line.line}});
  return {{"run", run.kind == RunKind::main ? "main" : "spillway"},
          {"ended", run.ended},
          {"records", records},
          {"unknown", unknown}};
}

Json readRecords(Application& application, const Arguments& arguments) {
  const auto text = application.ports.files.read(arguments.text(0), kReadLimit);
  if (!text) throw RequestError(text.failure().path + ": " + text.failure().reason);
  Json runs = Json::array();
  for (const ControlRun& run : readControlRecords(text.value())) runs.push_back(describeRun(run));
  return runs;
}

const RecordLayout& recordNamed(const std::string& id) {
  const RecordLayout* record = findRecord(id);
  if (record == nullptr) throw RequestError("no record \"" + id + "\"");
  return *record;
}

// The values of a call as views, at most as many as there are fields that take one.
std::vector<std::string_view> valuesIn(const Json& list, std::span<const FieldLayout> fields) {
  std::vector<std::string_view> values;
  for (const Json& value : list) values.emplace_back(asText(value, "a value"));
  std::size_t taken = 0;
  for (const FieldLayout& field : fields) taken += field.literal ? 0 : 1;
  if (values.size() > taken) throw RequestError("the record takes " + std::to_string(taken) + " values at most");
  return values;
}

// How many values a record takes before the last word that is always in it.
std::size_t valuesBeforeLastWord(std::span<const FieldLayout> fields) {
  std::size_t values = 0;
  std::size_t needed = 0;
  for (const FieldLayout& field : fields) {
    if (!field.literal) {
      ++values;
    } else if (!field.literal->empty()) {
      needed = values;
    }
  }
  return needed;
}

Json composeNamed(Application&, const Arguments& arguments) {
  const RecordLayout& record = recordNamed(arguments.text(0));
  const auto values = valuesIn(arguments.list(1), record.fields);
  const std::size_t needed = valuesBeforeLastWord(record.fields);
  if (values.size() < needed) {
    throw RequestError("the record takes " + std::to_string(needed) + " values at least");
  }
  return composeRecord(record, values);
}

Json composeNamedRow(Application&, const Arguments& arguments) {
  const RecordLayout& record = recordNamed(arguments.text(0));
  if (!record.table) throw RequestError("record \"" + arguments.text(0) + "\" has no table");
  return composeRow(record, valuesIn(arguments.list(1), record.table->fields));
}

}  // namespace

std::vector<Operation> recordOperations() {
  return {
      {"PadField",
       {"text", "width"},
       [](Application&, const Arguments& a) -> Json { return PadField(a.text(0), a.integer(1)); }},
      {"PopLine",
       {"text"},
       [](Application&, const Arguments& a) -> Json {
         std::string_view rest = a.text(0);
         const std::string line = PopLine(rest);
         return {{"line", line}, {"rest", std::string(rest)}};
       }},
      {"nextTabField",
       {"line"},
       [](Application&, const Arguments& a) -> Json {
         std::string_view rest = a.text(0);
         const std::string field = nextTabField(rest);
         return {{"field", field}, {"rest", std::string(rest)}};
       }},
      {"ReadRecords", {"fileName"}, readRecords},
      {"ComposeRecord", {"record", "values"}, composeNamed},
      {"ComposeRow", {"record", "values"}, composeNamedRow},
  };
}

}  // namespace kestra
