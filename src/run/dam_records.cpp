#include "run/dam_records.h"

#include "base/fields.h"
#include "base/lines.h"
#include "base/text.h"

namespace kestra {
namespace {

enum class Place { before, within, after };

bool isHydrograph(std::string_view key) {
  return key == "HYD" || key == "HYDROGRAPH";
}

}  // namespace

std::string_view DamRecords::hydRecord() const {
  LineReader lines(hydText);
  std::string_view record;
  (void)lines.next(record);
  return record;
}

DamRecords readDamRecords(std::string_view text) {
  DamRecords records;
  Place place = Place::before;
  LineReader lines(text);
  for (std::string_view line; lines.next(line);) {
    const std::string_view key = trim(columns(line, 1, 10));
    if (key == "OPTION") records.drawdown = trim(columns(line, 41, 10)) == "DRAWDOWN";
    // The runs of spillways behind the dam's have hydrographs of their own.
    if (place != Place::after && isHydrograph(key)) {
      place = Place::within;
      records.iterate = records.iterate || columns(line, 41, 1) == "1";
      records.variableStep = records.variableStep || columns(line, 42, 1) == "V";
    }
    std::string& target = place == Place::before   ? records.beforeHyd
                          : place == Place::within ? records.hydText
                                                   : records.afterHydText;
    target.append(line).append(kCrLf);
    if (place == Place::within && key == "ENDTABLE") place = Place::after;
  }
  return records;
}

}  // namespace kestra
