#include "base/lines.h"

namespace kestra {

bool LineReader::next(std::string_view& line) {
  if (rest_.empty()) return false;
  const std::size_t end = rest_.find('\n');
  line = rest_.substr(0, end);
  rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  ++number_;
  return true;
}

}  // namespace kestra
