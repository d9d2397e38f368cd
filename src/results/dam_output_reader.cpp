#include "results/dam_output_reader.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <span>

#include "base/numbers.h"
#include "results/field_number.h"
#include "results/output_line.h"
#include "results/round_to.h"
#include "results/routing_table.h"

namespace kestra {
namespace {

constexpr int kWidth = 10;     // of a field of the echo
constexpr int kKeyWidth = 11;  // the keyword stands somewhere in these columns
constexpr int kSpillwayColumn = 12;

// A field that goes to a line of the digest as it stands.
struct Copied {
  int first;
  int width;
  std::size_t line;
};

struct ReportLine {
  std::string_view beginning;
  Copied field;
};
constexpr ReportLine kReportLines[] = {
    {"Total duration of flow over top of dam:", {40, 10, 19}},
    {"Embankment slope stress or discharge exceeded 100% of", {67, 10, 29}},
    {"Embankment breach initiated at", {32, 10, 36}},
    {"Embankment breach completed at", {32, 10, 37}},
    {"Final breach width was", {24, 8, 38}},
};

struct HeadcutModel {
  std::string_view number;
  std::string_view name;
  std::span<const Copied> parameters;
};
constexpr Copied kFirstModel[] = {{32, kWidth, 32}, {52, kWidth, 34}, {62, kWidth, 35}};
constexpr Copied kSecondModel[] = {{22, kWidth, 31}, {32, kWidth, 32}, {42, kWidth, 33}, {52, kWidth, 34}};
constexpr HeadcutModel kHeadcutModels[] = {{"1", "Temple/Hanson", kFirstModel}, {"2", "Hanson/Robinson", kSecondModel}};

constexpr Copied kDownstream[] = {{22, kWidth, 21}, {32, kWidth, 22}, {42, kWidth, 23}};

bool holds(std::string_view text, std::string_view words) {
  return text.find(words) != std::string_view::npos;
}

// How many lines hold one of two words with the same first letter.
std::size_t linesWith(std::string_view text, std::string_view word, std::string_view other) {
  std::size_t count = 0;
  std::size_t at = text.find(word.front());
  while (at != std::string_view::npos) {
    const std::string_view rest = text.substr(at);
    if (rest.starts_with(word) || rest.starts_with(other)) {
      ++count;
      at = text.find('\n', at);
      if (at == std::string_view::npos) break;
    }
    at = text.find(word.front(), at + 1);
  }
  return count;
}

class DamOutputReader {
 public:
  explicit DamOutputReader(std::string_view output) : output_(output), lines_(output) {}

  DigestFields read() {
    field(6) = "N/A";
    std::string_view text;
    while (lines_.next(text)) {
      const OutputLine line(text);
      takeRecord(line);
      takeReport(line);
      takeTable(line);
    }
    takeExtremes();
    takeCounts();
    return std::move(fields_);
  }

 private:
  using Take = void (DamOutputReader::*)(const OutputLine&);
  struct Record {
    std::string_view keyword;
    Take take;
  };
  static std::span<const Record> records();

  std::string& field(std::size_t line) { return fields_[line - 1]; }
  static std::string_view columnsOf(const OutputLine& line, const Copied& from) {
    return line.columns(from.first, from.width);
  }
  void copy(const OutputLine& line, const Copied& from) { field(from.line) = columnsOf(line, from); }
  // A figure as it stands. Asterisks and the like leave the field; false then.
  bool takeFigure(std::size_t line, std::string_view figure) {
    if (!fieldNumber(figure)) return false;
    field(line) = figure;
    return true;
  }

  static std::string_view keyOf(const OutputLine& line) {
    return line.text().size() > 1 ? line.columns(1, kKeyWidth) : std::string_view();
  }
  static bool mayHoldKeyword(std::string_view key) {
    return std::any_of(key.begin(), key.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
  }
  static bool endsBlock(std::string_view key) {
    if (!mayHoldKeyword(key)) return false;
    const auto all = records();
    return holds(key, "ENDRUN") ||
           std::any_of(all.begin(), all.end(), [key](const Record& record) { return holds(key, record.keyword); });
  }

  // The rows of a record's table, down to ENDTABLE. Where that is missing they end before the next record, or at the
  // end of the output, and then the search for anchors goes on behind the record itself.
  template <class Use>
  void forEachRow(Use use) {
    const LineReader behindRecord = lines_;
    LineReader before = lines_;
    std::string_view text;
    while (lines_.next(text)) {
      const OutputLine row(text);
      const std::string_view key = keyOf(row);
      if (holds(key, "ENDTABLE")) return;
      if (endsBlock(key)) {
        lines_ = before;
        return;
      }
      if (!isMessage(text)) use(row);
      before = lines_;
    }
    lines_ = behindRecord;
  }

  void takeRecord(const OutputLine& line) {
    const std::string_view key = keyOf(line);
    if (!mayHoldKeyword(key)) return;
    for (const Record& record : records()) {
      if (holds(key, record.keyword)) (this->*record.take)(line);
    }
  }

  void takeProject(const OutputLine& line) {
    constexpr int kTitleWidth = 50;
    if (titleTaken_ || line.length() <= 21) return;
    titleTaken_ = true;
    field(1) = line.columns(22, kTitleWidth);
  }

  void takeOption(const OutputLine& line) { riprap_ = riprap_ || line.columns(22, 6) == "RIPRAP"; }

  void takeHeadcutModel(const OutputLine& line) {
    for (const HeadcutModel& model : kHeadcutModels) {
      if (line.columns(12, 1) != model.number) continue;
      field(30) = model.name;
      for (const Copied& parameter : model.parameters) copy(line, parameter);
    }
  }

  void takeDownstream(const OutputLine& line) {
    for (const Copied& value : kDownstream) copy(line, value);
    downstream_ = line.columns(32, kWidth);
  }

  void takeHydrograph(const OutputLine& line) {
    if (hydrographTaken_) return;
    hydrographTaken_ = true;
    copy(line, {12, kWidth, 8});
    Extremes flows;
    forEachRow([&flows](const OutputLine& row) {
      for (int column = 22; column <= 62; column += kWidth) flows.add(row.columns(column, kWidth));
    });
    round(9, flows, 1);
  }

  void takeRoutingStart(const OutputLine& line) {
    if (startTaken_) return;
    startTaken_ = true;
    copy(line, {12, kWidth, 10});
  }

  // Its rows reach no line of the digest, and are no records.
  void passTable(const OutputLine&) {
    forEachRow([](const OutputLine&) {});
  }

  void takeCrestProfile(const OutputLine&) {
    Extremes elevations;
    std::optional<double> first;
    std::optional<double> last;
    forEachRow([&](const OutputLine& row) {
      elevations.add(row.columns(22, kWidth));
      const auto station = fieldNumber(row.columns(12, kWidth));
      if (station && !first) first = station;
      if (station) last = station;
    });
    if (elevations.lowest()) {
      std::string lowest = RoundTo(*elevations.lowest(), 2);
      if (!holds(lowest, ".")) lowest += ".0";
      field(6) = lowest;
    }
    if (first) field(7) = generalNumber(*last - *first);
  }

  void takeInlet(const OutputLine& line) { copy(line, {32, kWidth, 2}); }

  // Number of the spillway of a record, from 1; 0 where it names none of the three.
  static std::size_t spillwayOf(const OutputLine& line) {
    const std::string_view number = line.columns(kSpillwayColumn, 1);
    return number == "1" || number == "2" || number == "3" ? static_cast<std::size_t>(number.front() - '0') : 0;
  }

  void takeSpillway(std::size_t number, const std::string& crest) {
    if (number == 0) return;
    present_[number - 1] = true;
    if (!crest.empty()) field(number + 2) = crest;
  }

  void takeSurface(const OutputLine& line) {
    Extremes elevations;
    forEachRow([&elevations](const OutputLine& row) { elevations.add(row.columns(22, kWidth)); });
    const auto crest = elevations.highest();
    takeSpillway(spillwayOf(line), crest ? generalNumber(*crest) : "");
  }

  // The crest is the elevation up to which nothing flows.
  void takeRating(const OutputLine& line) {
    std::string crest;
    forEachRow([&crest](const OutputLine& row) {
      const std::string_view elevation = row.columns(12, kWidth);
      if (fieldNumber(elevation) && lenientNumber(row.columns(22, kWidth)) == 0) crest = elevation;
    });
    takeSpillway(spillwayOf(line), crest);
  }

  void takeReport(const OutputLine& line) {
    if (line.text().starts_with("Outflow peaked at")) takePeak(line);
    if (line.text().starts_with("Maximum pool elevation was")) takeMaximumPool(line);
    for (const ReportLine& report : kReportLines) {
      if (line.text().starts_with(report.beginning)) takeFigure(report.field.line, columnsOf(line, report.field));
    }
  }

  void takePeak(const OutputLine& line) {
    const std::string_view text = line.text().substr(0, line.text().find_last_not_of(' ') + 1);
    const OutputLine shortened(text);
    if (!poolTaken_ && shortened.length() > 15) {
      takeFigure(11, shortened.columns(static_cast<int>(shortened.length()) - 15, kWidth));
    }
    const std::size_t with = text.find("with");
    if (!field(12).empty() || with == std::string_view::npos) return;
    const std::string_view rest = text.substr(with + 4);
    takeFigure(12, rest.substr(0, rest.find("cfs")));
  }

  // It goes before what the line of the peak says of the pool.
  void takeMaximumPool(const OutputLine& line) {
    constexpr int kLongest = 100;
    const std::string_view rest = line.columns(27, kLongest);
    if (takeFigure(11, rest.substr(0, rest.find("feet")))) poolTaken_ = true;
  }

  void takeTable(const OutputLine& line) {
    constexpr int kHeadingLines = 4;
    const std::string_view text = line.text();
    if (isRoutingTitle(text)) {
      if (enterRoutingTable(lines_)) takeRouting();
    } else if (line.columns(20, 36) == "Stress on Vegetated Embankment Slope") {
      skipLines(lines_, kHeadingLines);
      takeRows({{&slope_, 13, 12}, {&stress_, 25, 12}, {&stressShare_, 37, 12}, {&effectiveShare_, 74, 12}});
    } else if (text.starts_with("Flow on Riprapped Embankment Slope")) {
      skipLines(lines_, kHeadingLines);
      takeRows({{&slope_, 13, 18}, {&riprapFlow_, 31, 20}});
    }
  }

  void takeRouting() {
    takeRows({{&principal_, kRoutingPrincipal, kRoutingWidth},
              {&spillways_[0], routingSpillway(1), kRoutingWidth},
              {&spillways_[1], routingSpillway(2), kRoutingWidth},
              {&spillways_[2], routingSpillway(3), kRoutingWidth},
              {&overDam_, kRoutingOverDam, kRoutingWidth}});
  }

  struct Column {
    Extremes* extremes;
    int first;
    int width;
  };
  void takeRows(std::initializer_list<Column> columns) {
    OutputLine row;
    while (nextTableRow(lines_, row)) {
      for (const Column& column : columns) column.extremes->add(row.columns(column.first, column.width));
    }
  }

  void round(std::size_t line, const Extremes& extremes, int digits) {
    if (const auto highest = extremes.highest()) field(line) = RoundTo(*highest, digits);
  }

  void takeExtremes() {
    round(13, principal_, 1);
    for (std::size_t i = 0; i < spillways_.size(); ++i) {
      if (present_[i]) round(14 + i, spillways_[i], 2);
    }
    round(17, overDam_, 1);
    if (field(17) == "0") field(17) = "0.0";
    const auto pool = fieldNumber(field(11));
    const auto crest = fieldNumber(field(6));
    if (pool && crest) field(18) = RoundTo(*pool - *crest, 2);
    round(kSlopeDischarge, slope_, 1);
    if (riprap_) field(24) = downstream_;
    round(25, stress_, 2);
    round(26, stressShare_, 1);
    round(27, effectiveShare_, 2);
    if (const auto flow = riprapFlow_.highest()) field(28) = generalNumber(*flow);
  }

  void takeCounts() {
    field(39) = std::to_string(linesWith(output_, "ERROR", "Error"));
    field(40) = std::to_string(linesWith(output_, "WARNING", "Warning"));
  }

  std::string_view output_;
  LineReader lines_;
  DigestFields fields_;
  bool titleTaken_ = false;
  bool hydrographTaken_ = false;
  bool startTaken_ = false;
  bool poolTaken_ = false;
  bool riprap_ = false;
  std::string downstream_;
  std::array<bool, 3> present_{};
  Extremes principal_, overDam_, slope_, stress_, stressShare_, effectiveShare_, riprapFlow_;
  std::array<Extremes, 3> spillways_;
};

std::span<const DamOutputReader::Record> DamOutputReader::records() {
  using Reader = DamOutputReader;
  static constexpr Record kRecords[] = {
      {"KESTRA", &Reader::takeProject},       {"OPTION", &Reader::takeOption},
      {"HCMODEL", &Reader::takeHeadcutModel}, {"DWNSTREAM", &Reader::takeDownstream},
      {"HYD", &Reader::takeHydrograph},       {"STROUTE", &Reader::takeRoutingStart},
      {"STRUCTURE", &Reader::passTable},      {"CRESTPRFL", &Reader::takeCrestProfile},
      {"PSpINLET", &Reader::takeInlet},       {"ASSURFACE", &Reader::takeSurface},
      {"ASRATING", &Reader::takeRating},
  };
  return kRecords;
}

}  // namespace

DigestFields readDamOutput(std::string_view output) {
  return DamOutputReader(output).read();
}

}  // namespace kestra
