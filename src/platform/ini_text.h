#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

// The text of a settings file.
//
//   ; a comment, as is a line that begins with #
//   [Window]
//   Left=120
//   Title=" with blanks at its ends "
//
// A line ends in CR LF or LF; CR LF is written. Blanks, tabs and carriage returns around a line, a key and a value do
// not count. Section and key are compared without regard to the case of ASCII letters. Keys before the first section
// line belong to the section with the empty name. When a key stands there several times, the first one counts. A byte
// order mark at the beginning is passed over. Any other line is kept and has no meaning.
//
// A value that begins with a double quote, has blanks at its ends or holds a control character is written in double
// quotes, with \" \\ \n \r \t inside them; any other value stands as it is, so that C:\new\table is plain. So is a key
// that is empty, holds = or a control character, has blanks at its ends or begins with " [ ; # or a byte order mark,
// and a section name that is empty, holds ] or a control character, has blanks at its ends or begins with a double
// quote. What begins with a double quote and is not of this form (an escape that there is none of, no closing quote,
// something behind it) is read as it stands.
namespace kestra {

using IniName = std::pair<std::string, std::string>;  // section and key in upper case
using IniValues = std::map<IniName, std::string>;

IniName iniName(std::string_view section, std::string_view key);

// All that can be read. Never fails.
IniValues readIni(std::string_view text);

// `text` with one value set: in its line, at the end of its section, or in a new section at the end. All other lines
// stand byte for byte; a last line without line end gets one when something is put behind it.
std::string setIniValue(std::string_view text, std::string_view section, std::string_view key, std::string_view value);

}  // namespace kestra
