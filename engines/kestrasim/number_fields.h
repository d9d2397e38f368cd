#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "control/record_reader.h"
#include "kestrasim/run_messages.h"

// Numbers in the fields of records, with what is wrong with them.
namespace kestra {

// What a number is held in. Beyond any dam, and small enough that no result leaves the numbers of a double.
struct NumberRange {
  double least = 0;
  double most = 0;
};

inline constexpr NumberRange kElevations{-1e4, 1e5};  // ft
inline constexpr NumberRange kStations{-1e6, 1e6};    // ft
inline constexpr NumberRange kDischarges{0, 1e7};     // cfs
inline constexpr NumberRange kHours{-1e5, 1e5};
inline constexpr NumberRange kVolumes{0, 1e8};       // acre-ft
inline constexpr NumberRange kAreas{0, 1e7};         // acres
inline constexpr NumberRange kRoughness{0.001, 20};  // Manning's n or a retardance curve index

// The number in a field; nothing for a blank one. Text that is no number counts as far as it is one, a number outside
// the range as the end of the range; both are told.
std::optional<double> numberIn(std::string_view text, std::string_view name, NumberRange range, const Place& place,
                               RunMessages& messages);

// Where a number of a record goes.
template <class Record>
struct NumberField {
  std::string_view name;  // of the catalogue
  std::optional<double> Record::*member;
  NumberRange range;
};

template <class Record>
void readNumbers(const ControlRecord& record, std::span<const NumberField<Record>> fields, Record& into,
                 RunMessages& messages) {
  into.line = record.lineNumber;
  const Place place{std::string(record.layout->keyword), record.lineNumber};
  for (const NumberField<Record>& field : fields) {
    into.*field.member = numberIn(record.fields.named(field.name).text(), field.name, field.range, place, messages);
  }
}

}  // namespace kestra
