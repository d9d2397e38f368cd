// Any bytes as a control file that is imported: every line comes through, ended by CR LF, and but for the links to the
// dam's results as it stood; importing the copy again changes nothing.
#include <string>
#include <string_view>

#include "base/lines.h"
#include "fuzz_target.h"
#include "shell/import_command.h"

namespace kestra {
namespace {

constexpr const char* kTarget = "/p/dam.KSC";
constexpr std::string_view kResults = "/p/dam.OUT";

void checkLines(std::string_view source, std::string_view copy) {
  LineReader before(source);
  LineReader after(copy);
  std::string_view a;
  std::string_view b;
  while (before.next(a)) {
    fuzzRequire(after.next(b), "no line is lost");
    fuzzRequire(a == b || b.ends_with(kResults), "a line changes by its link alone");
  }
  fuzzRequire(!after.next(b), "no line is added");
}

}  // namespace

std::vector<std::string> fuzzSeeds() {
  return {"KESTRA    01/01/2009Pond\r\n\r\nENDRUN\r\nQUIL\r\nKESTRA    1         /far/dam.OUT\r\nENDRUN\r\n",
          "TORVE\n\n  KESTRA  2         x", "VERN2     \r\nKESTRA    1         \r\n"};
}

}  // namespace kestra

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kestra;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::string copy = importedText(text, kTarget);
  checkLines(text, copy);
  fuzzRequire(importedText(copy, kTarget) == copy, "a copy is copied as it is");
  if (!text.empty()) fuzzRequire(beginsLikeControlFile(text) == beginsLikeControlFile(copy), "the first line is kept");
  return 0;
}
