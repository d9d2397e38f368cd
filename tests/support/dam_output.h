#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// Parts of a dam run's output as the solver prints them.
namespace kestra {

inline std::string rightIn(std::size_t width, std::string_view text) {
  return std::string(text.size() < width ? width - text.size() : 0, ' ').append(text);
}
inline std::string leftIn(std::size_t width, std::string_view text) {
  std::string field(text.substr(0, width));
  field.resize(width, ' ');
  return field;
}

// Fields side by side, right-justified; the first ends in column `first`, each further one `width` columns on.
inline std::string fieldsOf(std::initializer_list<std::string_view> texts, std::size_t width, std::size_t first) {
  std::string line;
  std::size_t end = first;
  for (const std::string_view text : texts) {
    line += rightIn(end - line.size(), text);
    end += width;
  }
  return line;
}

// A record of the echo: one blank, then the keyword and fields of ten.
inline std::string echo(std::initializer_list<std::string_view> fields) {
  std::string line = " ";
  for (const std::string_view field : fields) line += leftIn(10, field);
  return line;
}

// Time, inflow, principal spillway, auxiliary spillways 1 to 3, over the dam, outflow, pool, surface, tailwater.
inline std::string routingRow(std::initializer_list<std::string_view> texts) {
  return fieldsOf(texts, 10, 10);
}

inline std::string joinLines(const std::vector<std::string>& lines, std::string_view end = "\r\n") {
  std::string text;
  for (const std::string& line : lines) text.append(line).append(end);
  return text;
}

inline std::vector<std::string> routingTable(const std::vector<std::string>& rows) {
  std::vector<std::string> lines = {"     Hydrograph Routing", "      Time    Inflow", "      ----", "      more",
                                    "      (hr)     (cfs)",    "  --------  --------"};
  lines.insert(lines.end(), rows.begin(), rows.end());
  lines.emplace_back();
  return lines;
}

}  // namespace kestra
