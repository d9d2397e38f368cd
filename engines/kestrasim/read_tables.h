#pragma once

#include <string_view>
#include <vector>

#include "control/record_reader.h"
#include "kestrasim/dam_model.h"
#include "kestrasim/number_fields.h"

// The tables behind records.
namespace kestra {

struct TableColumn {
  std::string_view name;  // of the catalogue
  NumberRange range;
};

// A table of two columns; in `rising` order of the first where asked, rows that do not rise (or, with equal ones
// allowed, that fall) being left out. Rows with one number only are left out.
enum class Order { rising, notFalling, any };
std::vector<TablePoint> readPoints(const ControlRecord& record, const TableColumn& first, const TableColumn& second,
                                   Order order, RunMessages& messages);

HydrographRecord readHydrograph(const ControlRecord& record, RunMessages& messages);
StructureRecord readStructure(const ControlRecord& record, RunMessages& messages);
std::vector<ReachRow> readReaches(const ControlRecord& record, RunMessages& messages);

}  // namespace kestra
