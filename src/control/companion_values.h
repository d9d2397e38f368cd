#pragma once

#include <nlohmann/json.hpp>

#include <string>

#include "controls/table.h"
#include "screens/aux_store.h"

// The values of a companion as JSON, and back. What is of another type than was meant is left out when it is taken.
namespace kestra {

using Json = nlohmann::ordered_json;

// A text that is no UTF-8 becomes {"hex": "..."}.
Json textJson(const std::string& text);
bool takeText(const Json& json, std::string& text);  // false, and nothing happens, where there is no text

// The data cells of a table, blank rows at its end left out.
Json tableJson(const Table& table);
void takeTable(const Json& json, Table& table);  // cells that the table does not have are passed over

Json spillwayJson(const AuxProfile& profile, const AuxMaterials& materials);
void takeSpillway(const Json& json, AuxProfile& profile, AuxMaterials& materials);

}  // namespace kestra
