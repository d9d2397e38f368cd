#include "control/companion_values.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/runtime_fault.h"
#include "control/screen_fields.h"

namespace kestra {
namespace {

constexpr int kMostRows = 100'001;  // that a table may have grown to

int hexDigit(char c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  return static_cast<int>(kDigits.find(c));
}

std::string bytesOf(const std::string& hex) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
    bytes += static_cast<char>(hexDigit(hex[i]) * 16 + hexDigit(hex[i + 1]));
  }
  return bytes;
}

// What stands under a key; null where nothing does, or `json` is no object.
const Json& at(const Json& json, const std::string& key) {
  static const Json kNothing;
  const auto found = json.is_object() ? json.find(key) : json.end();
  return found == json.end() ? kNothing : *found;
}

void takeFlag(const Json& json, bool& flag) {
  if (json.is_boolean()) flag = json.get<bool>();
}

template <class Texts>
bool isBlank(const Texts& texts) {
  return std::all_of(texts.begin(), texts.end(), [](const std::string& text) { return text.empty(); });
}

template <class Texts>
Json listJson(const Texts& texts) {
  Json list = Json::array();
  for (const std::string& text : texts) list.push_back(textJson(text));
  return list;
}

template <class Texts>
void takeList(const Json& json, Texts& texts) {
  for (std::size_t i = 0; json.is_array() && i < std::min(json.size(), texts.size()); ++i) takeText(json[i], texts[i]);
}

template <class Row>
Json rowsJson(const std::vector<Row>& rows) {
  const auto end = std::find_if_not(rows.rbegin(), rows.rend(), isBlank<Row>).base();
  Json list = Json::array();
  for (auto row = rows.begin(); row != end; ++row) list.push_back(listJson(*row));
  return list;
}

// Rows in the places that `rows` has; the others become blank.
template <class Row>
void takeRows(const Json& json, std::vector<Row>& rows) {
  std::fill(rows.begin(), rows.end(), Row());
  for (std::size_t i = 0; json.is_array() && i < std::min(json.size(), rows.size()); ++i) takeList(json[i], rows[i]);
}

Json distributionJson(const Distribution& distribution) {
  if (distribution == Distribution()) return nullptr;
  return {{"name", textJson(distribution.name)},
          {"parameters", listJson(distribution.parameters)},
          {"inUse", distribution.inUse}};
}

template <std::size_t count>
Json distributionsJson(const std::array<Distribution, count>& distributions) {
  Json list = Json::array();
  for (const Distribution& distribution : distributions) list.push_back(distributionJson(distribution));
  return list;
}

template <std::size_t count>
void takeDistributions(const Json& json, std::array<Distribution, count>& distributions) {
  for (std::size_t i = 0; json.is_array() && i < std::min(json.size(), count); ++i) {
    distributions[i] = {};
    takeText(at(json[i], "name"), distributions[i].name);
    takeList(at(json[i], "parameters"), distributions[i].parameters);
    takeFlag(at(json[i], "inUse"), distributions[i].inUse);
  }
}

constexpr std::array<const char*, 3> kFills = {"none", "inPlace", "external"};

Json profileJson(const AuxProfile& profile) {
  Json json = Json::object();
  for (const StoredField& field : storedFields()) json[std::string(field.name)] = textJson(profile.*field.text);
  json["chkCrest"] = profile.chkCrest;
  json["chkBarrier"] = profile.chkBarrier;
  json["fills"] = Json::array();
  for (const FillChoice fill : profile.fill) json["fills"].push_back(kFills[static_cast<std::size_t>(fill)]);
  json["materNum"] = listJson(profile.materNum);
  json["points"] = rowsJson(profile.points);
  json["reaches"] = rowsJson(profile.reaches);
  json["hydroDist"] = distributionsJson(profile.hydroDist);
  return json;
}

void takeProfile(const Json& json, AuxProfile& profile) {
  for (const StoredField& field : storedFields()) takeText(at(json, std::string(field.name)), profile.*field.text);
  takeFlag(at(json, "chkCrest"), profile.chkCrest);
  takeFlag(at(json, "chkBarrier"), profile.chkBarrier);
  const Json& fills = at(json, "fills");
  for (std::size_t i = 0; fills.is_array() && i < std::min(fills.size(), profile.fill.size()); ++i) {
    const auto found = std::find(kFills.begin(), kFills.end(), fills[i]);
    if (found != kFills.end()) profile.fill[i] = static_cast<FillChoice>(found - kFills.begin());
  }
  takeList(at(json, "materNum"), profile.materNum);
  takeRows(at(json, "points"), profile.points);
  takeRows(at(json, "reaches"), profile.reaches);
  takeDistributions(at(json, "hydroDist"), profile.hydroDist);
}

Json materialJson(const AuxMaterial& material) {
  return {{"description", textJson(material.description)},
          {"values", listJson(material.values)},
          {"byDetachment", material.byDetachment},
          {"distributions", distributionsJson(material.distributions)},
          {"points", rowsJson(material.points)}};
}

void takeMaterial(const Json& json, AuxMaterial& material) {
  takeText(at(json, "description"), material.description);
  takeList(at(json, "values"), material.values);
  takeFlag(at(json, "byDetachment"), material.byDetachment);
  takeDistributions(at(json, "distributions"), material.distributions);
  const Json& points = at(json, "points");
  material.points.resize(std::min<std::size_t>(points.size(), kAuxPoints));
  takeRows(points, material.points);
}

}  // namespace

Json textJson(const std::string& text) {
  const Json json = text;
  const std::string shown = json.dump(-1, ' ', false, Json::error_handler_t::replace);
  if (Json::parse(shown) == json) return json;
  std::string hex;
  for (const char c : text) hex += fmt::format("{:02x}", static_cast<unsigned char>(c));
  return {{"hex", hex}};
}

bool takeText(const Json& json, std::string& text) {
  const Json& hex = at(json, "hex");
  if (!json.is_string() && !hex.is_string()) return false;
  text = json.is_string() ? json.get<std::string>() : bytesOf(hex.get<std::string>());
  return true;
}

Json tableJson(const Table& table) {
  std::vector<std::vector<std::string>> rows;
  for (int row = table.fixedRows(); row < table.rows(); ++row) {
    rows.emplace_back();
    for (int column = table.fixedColumns(); column < table.columns(); ++column) {
      rows.back().push_back(table.cell(row, column));
    }
  }
  return rowsJson(rows);
}

void takeTable(const Json& json, Table& table) {
  if (!json.is_array()) return;
  table.growTo(std::min(static_cast<int>(json.size()) + table.fixedRows(), kMostRows));
  table.clearData();
  for (std::size_t row = 0; row < json.size(); ++row) {
    for (std::size_t column = 0; json[row].is_array() && column < json[row].size(); ++column) {
      std::string text;
      takeText(json[row][column], text);
      table.setCell(static_cast<int>(row) + table.fixedRows(), static_cast<int>(column) + table.fixedColumns(),
                    std::move(text));
    }
  }
}

Json spillwayJson(const AuxProfile& profile, const AuxMaterials& materials) {
  Json records = Json::array();
  for (int number = 1; number <= materials.count + 2; ++number) {
    records.push_back(materialJson(materials.material(number)));
  }
  return {{"profile", profileJson(profile)}, {"materials", std::move(records)}};
}

void takeSpillway(const Json& json, AuxProfile& profile, AuxMaterials& materials) {
  takeProfile(at(json, "profile"), profile);
  const Json& records = at(json, "materials");
  if (!records.is_array() || records.size() < 2 || records.size() >= kMaterialSlots) return;
  materials.clear();
  materials.count = static_cast<int>(records.size()) - 2;
  for (std::size_t i = 0; i < records.size(); ++i) {
    takeMaterial(records[i], materials.material(static_cast<int>(i) + 1));
  }
}

}  // namespace kestra
