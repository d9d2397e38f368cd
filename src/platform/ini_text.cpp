#include "platform/ini_text.h"

#include <algorithm>
#include <optional>

#include "base/fields.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t\r\n";      // the line feed ends a line, and stands in no plain text
constexpr std::string_view kEscaped = "\n\r\t\\\"";  // and, in the same order, the letters that stand for them
constexpr std::string_view kLetters = "nrt\\\"";

std::string_view trimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool isControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

// Whether a text, written as it is, would not be read back as the same text.
bool needsQuotes(std::string_view text) {
  return text.starts_with('"') || trimBlanks(text) != text || std::any_of(text.begin(), text.end(), isControl);
}

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    const std::size_t at = kEscaped.find(c);
    if (at == std::string_view::npos) {
      result += c;
    } else {
      (result += '\\') += kLetters[at];
    }
  }
  return result += '"';
}

std::string sectionText(std::string_view section) {
  const bool quote = section.empty() || section.find(']') != std::string_view::npos || needsQuotes(section);
  return quote ? quoted(section) : std::string(section);
}

std::string keyText(std::string_view key) {
  const bool quote = key.empty() || key.find('=') != std::string_view::npos || key.starts_with('[') ||
                     key.starts_with(';') || key.starts_with('#') || key.starts_with(kByteOrderMark) ||
                     needsQuotes(key);
  return quote ? quoted(key) : std::string(key);
}

std::string valueText(std::string_view value) {
  return needsQuotes(value) ? quoted(value) : std::string(value);
}

// Takes a quoted text off the front of `text`; nothing, and `text` as it was, when there is none.
std::optional<std::string> takeQuoted(std::string_view& text) {
  if (!text.starts_with('"')) return std::nullopt;
  std::string result;
  for (std::size_t at = 1; at < text.size(); ++at) {
    if (text[at] == '"') {
      text.remove_prefix(at + 1);
      return result;
    }
    if (text[at] != '\\') {
      result += text[at];
      continue;
    }
    const std::size_t letter = ++at < text.size() ? kLetters.find(text[at]) : std::string_view::npos;
    if (letter == std::string_view::npos) return std::nullopt;
    result += kEscaped[letter];
  }
  return std::nullopt;
}

// The quoted text that `text` begins with when behind it, blanks aside, stands `end` ("": nothing more); what follows
// `end` is left in `text`. Otherwise the plain text up to `end`.
std::string takeText(std::string_view& text, std::string_view end) {
  std::string_view rest = text;
  if (const auto value = takeQuoted(rest)) {
    rest = trimBlanks(rest);
    if (end.empty() ? rest.empty() : rest.starts_with(end)) {
      text = rest.substr(end.size());
      return *value;
    }
  }
  const std::size_t at = end.empty() ? text.size() : std::min(text.find(end), text.size());
  std::string plain(trimBlanks(text.substr(0, at)));
  text.remove_prefix(std::min(at + end.size(), text.size()));
  return plain;
}

// A line of the text: where it stands, and what it means.
struct Line {
  enum class Kind { section, entry, blank, other };
  Kind kind = Kind::other;
  std::size_t begin = 0;  // in bytes
  std::size_t end = 0;    // behind its line end
  std::string name;       // of the section, or the key
  std::string value;
};

Line meaning(std::string_view text) {
  Line line;
  text = trimBlanks(text);
  if (text.empty()) {
    line.kind = Line::Kind::blank;
  } else if (text.front() == '[') {
    text.remove_prefix(1);
    text = trimBlanks(text);
    line.kind = Line::Kind::section;
    line.name = takeText(text, "]");
  } else if (text.front() != ';' && text.front() != '#' && text.front() != '=' &&
             text.find('=') != std::string_view::npos) {
    line.kind = Line::Kind::entry;
    line.name = takeText(text, "=");
    text = trimBlanks(text);
    line.value = takeText(text, "");
  }
  return line;
}

class LineWalk {
 public:
  explicit LineWalk(std::string_view text) : text_(text) {}

  std::optional<Line> next() {
    if (at_ >= text_.size()) return std::nullopt;
    const std::size_t feed = text_.find('\n', at_);
    const std::size_t end = feed == std::string_view::npos ? text_.size() : feed + 1;
    if (at_ == 0 && text_.starts_with(kByteOrderMark)) at_ = kByteOrderMark.size();
    Line line = meaning(text_.substr(at_, end - at_));
    line.begin = at_;
    line.end = end;
    at_ = end;
    return line;
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
};

// Where a value is to be written: over the bytes from `begin` to `end`, below a new section line if `newSection`.
struct Spot {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool newSection = false;
};

Spot findSpot(std::string_view text, std::string_view section, std::string_view key) {
  const std::size_t start = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  bool inside = section.empty();
  bool insideFirst = inside;
  std::optional<std::size_t> behind;  // the last line with content of the first section of that name
  if (inside) behind = start;
  LineWalk walk(text);
  while (const auto line = walk.next()) {
    if (line->kind == Line::Kind::section) {
      inside = equalIgnoringCase(line->name, section);
      insideFirst = inside && !behind;
    }
    if (!inside) continue;
    if (line->kind == Line::Kind::entry && equalIgnoringCase(line->name, key)) return {line->begin, line->end, false};
    if (insideFirst && line->kind != Line::Kind::blank) behind = line->end;
  }
  if (behind) return {*behind, *behind, false};
  return {text.size(), text.size(), true};
}

}  // namespace

IniName iniName(std::string_view section, std::string_view key) {
  return {toUpper(section), toUpper(key)};
}

IniValues readIni(std::string_view text) {
  IniValues values;
  std::string section;
  LineWalk walk(text);
  while (auto line = walk.next()) {
    if (line->kind == Line::Kind::section) section = line->name;
    if (line->kind == Line::Kind::entry) values.emplace(iniName(section, line->name), std::move(line->value));
  }
  return values;
}

std::string setIniValue(std::string_view text, std::string_view section, std::string_view key, std::string_view value) {
  const Spot spot = findSpot(text, section, key);
  std::string result(text.substr(0, spot.begin));
  const bool atTop = result.empty() || result == kByteOrderMark;
  if (!atTop && result.back() != '\n') result += kCrLf;
  if (spot.newSection) {
    if (!atTop) result += kCrLf;
    result.append("[").append(sectionText(section)).append("]").append(kCrLf);
  }
  result.append(keyText(key)).append("=").append(valueText(value)).append(kCrLf);
  return result.append(text.substr(spot.end));
}

}  // namespace kestra
