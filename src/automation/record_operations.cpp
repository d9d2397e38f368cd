#include "automation/operations.h"
#include "base/fields.h"

namespace kestra {

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
  };
}

}  // namespace kestra
