#pragma once

#include <span>
#include <string_view>

// Fields that hold a word for a choice on a screen.
namespace kestra {

// A word, and the option that is selected with it. "(i)" stands for the index of the spillway.
struct WordChoice {
  std::string_view option;  // "frmProjectInformation.optUser"
  std::string_view word;
};

struct WordField {
  std::string_view control;             // as the catalogue names the controls of the field
  std::span<const WordChoice> written;  // the word of the first option that is selected
  std::string_view otherwise;           // the word where none is
  std::span<const WordChoice> read;     // the option that a word selects
  std::string_view readOtherwise;       // the option that any other word selects; empty: none
};

// The field of these controls; null for a field that holds no such word.
const WordField* findWordField(std::string_view control);

}  // namespace kestra
