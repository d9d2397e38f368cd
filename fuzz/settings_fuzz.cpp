// Any bytes as a settings file: reading never fails, a value that is set is read back, and nothing else changes.

#include <string_view>

#include "fuzz_target.h"
#include "platform/ini_text.h"

namespace {

// Takes the bytes up to the next '|' off the front.
std::string_view take(std::string_view& text) {
  const std::size_t end = text.find('|');
  const std::string_view part = text.substr(0, end);
  text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  return part;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kestra;
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  const std::string_view section = take(rest);
  const std::string_view key = take(rest);
  const std::string_view value = take(rest);

  IniValues wanted = readIni(rest);
  wanted[iniName(section, key)] = value;
  const std::string changed = setIniValue(rest, section, key, value);
  fuzzRequire(readIni(changed) == wanted, "a value that is set is read back and all others stay");
  fuzzRequire(setIniValue(changed, section, key, value) == changed, "setting the same value again changes nothing");
  return 0;
}

std::vector<std::string> kestra::fuzzSeeds() {
  using namespace std::string_literals;
  return {
      "Window|Left|120|; comment\r\n[Window]\r\nLeft=1\r\nTop=2\r\n\r\n[Other]\r\nA=b\r\n",
      "window|NEW|C:\\new\\table|[Window]\nLeft=1\n[Other]\nA=\"x\\n\\\\\\\"\\t\"\n",
      "a]b|c=d|\" quoted \"|[\"a]b\"]\r\n\"c=d\"=\"\\\"\"\r\n\"[\"=1\r\n\";\"=2\r\n",
      "|top||\xef\xbb\xbfLeft=1\r\n[]\r\nsecond=2\r\n[a]\r\n[a]\r\nx=1\r\n[A]\r\nX=2",
      "Half|x|1|[Half\r\nkey=\"unfinished\r\nother=\"x\" y\r\n=nothing\r\nno equals sign\r\n\"k\" z=1\r\n[\"q] r",
      "z|nul|a\0b|[z]\r\nnul=\"a\0b\"\r\nlast=1"s,
  };
}
