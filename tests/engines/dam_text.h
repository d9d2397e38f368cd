#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/fields.h"

namespace kestra {

// A record of fields ten wide, the first of them the keyword; a table row begins with an empty one.
inline std::string fieldLine(std::initializer_list<std::string_view> fields) {
  std::string line;
  for (const std::string_view field : fields) line += PadField(field, 10);
  return line;
}

// The text of a control file, record by record, with a small whole dam to begin with.
class DamText {
 public:
  DamText() {
    records_ = {
        {"KESTRA", {"KESTRA    01/01/2009Test dam"}},
        {"OPTION", {"OPTION    COEFF     EARTH               NOBREACH"}},
        {"HYD",
         {"HYD       Flood     0.5       0         0C        ",
          "                    0         400       800       1200      900       ",
          "                    600       300       100       0         0         ", "ENDTABLE"}},
        {"STROUTE", {"STROUTE   118       100       FEET"}},
        {"STRUCTURE",
         {"STRUCTURE Test", "                    100                 0         0",
          "                    110                 20        4", "                    120                 80        8",
          "                    130                 190       14", "ENDTABLE"}},
        {"UPSTREAM", {"UPSTREAM  3         5.6"}},
        {"DAMCREST", {"DAMCREST  12        5.6       2.8       "}},
        {"DWNSTREAM", {"DWNSTREAM 2.5       5.6       0.75      2         10        0.01"}},
        {"CRESTPRFL",
         {"CRESTPRFL", "          0         127", "          50        125", "          250       125",
          "          300       127", "ENDTABLE"}},
        {"PSpINLET", {"PSpINLET  0.8       10        118"}},
        {"PSpDATA", {"PSpDATA   1    150  24                  0.013     104       101       SC"}},
        {"PSpCOEFFS", {"PSpCOEFFS 0.6       3.1416                        3.1       0"}},
        {"TAILWATER",
         {"TAILWATER", "          100       0", "          103       500", "          108       5000", "ENDTABLE"}},
        {"ASRATING",
         {"ASRATING  1Bywash   0", "          122       0", "          124       200", "          128       900",
          "ENDTABLE"}},
        {"OUTPUT", {"OUTPUT    ALL"}},
        {"ENDRUN", {"ENDRUN"}},
    };
  }

  // In place of the record with its table; before OUTPUT where there is none of that name yet.
  DamText& with(std::string_view keyword, std::vector<std::string> lines) {
    for (auto& [name, old] : records_) {
      if (name != keyword) continue;
      old = std::move(lines);
      return *this;
    }
    records_.insert(records_.end() - 2, {std::string(keyword), std::move(lines)});
    return *this;
  }

  DamText& without(std::string_view keyword) {
    std::erase_if(records_, [&](const auto& record) { return record.first == keyword; });
    return *this;
  }

  // Behind the main run.
  DamText& behind(std::vector<std::string> lines) {
    behind_ = std::move(lines);
    return *this;
  }

  std::string text() const {
    std::string all;
    for (const auto& [name, lines] : records_) append(all, lines);
    append(all, behind_);
    return all;
  }

 private:
  static void append(std::string& all, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) all += line + "\r\n";
  }

  std::vector<std::pair<std::string, std::vector<std::string>>> records_;
  std::vector<std::string> behind_;
};

// A dam that breaches.
inline DamText breachText() {
  DamText dam;
  dam.with("OPTION", {"OPTION    COEFF     EARTH     "});
  dam.with("HCMODEL", {"HCMODEL   1                   8                   0         16"});
  dam.with("DWNSTREAM", {"DWNSTREAM 2.5       5.6       0.75      3         0         0.01"});
  dam.with("HYD", {"HYD       Flood     0.5       0         0C        ",
                   "                    0         1000      2500      4000      3500      ",
                   "                    2800      2000      1200      500       0         ", "ENDTABLE"});
  return dam;
}

}  // namespace kestra
