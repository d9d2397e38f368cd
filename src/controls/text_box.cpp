#include "controls/text_box.h"

#include <utility>

#include "base/text.h"
#include "controls/screen.h"
#include "controls/undo_history.h"

namespace kestra {

TextBox::TextBox(Screen& screen, std::string name, std::string text, int maxLength)
    : Control(screen, std::move(name), ControlKind::text), text_(std::move(text)), maxLength_(maxLength) {}

void TextBox::setText(std::string text) {
  if (UndoHistory* kept = history(); kept != nullptr && text != text_) kept->keep(text_, this, Property::value, true);
  text_ = std::move(text);
  changed(Property::value);
}

void TextBox::userReplace(std::string_view text) {
  if (locked_) return;
  const Gesture gesture(history(), nullptr);
  // A field of a record is one line.
  if (!multiLine_ && screen().holdsInput()) text = text.substr(0, text.find_first_of("\r\n"));
  setText(std::string(maxLength_ > 0 ? charsFrom(text, 0, static_cast<std::size_t>(maxLength_)) : text));
  edited();
  if (onChange) onChange();
}

void TextBox::userKey(const Key& key) {
  const Gesture gesture(history(), this);
  if (onKeyPress && !onKeyPress(key)) return;
  if (key.character == kBackspace) {
    if (!text_.empty()) userReplace(charsFrom(text_, 0, charCount(text_) - 1));
  } else if (key.character == kEnter) {
    if (multiLine_) userReplace(text_ + "\r\n");
  } else if (key.character >= U' ') {
    userReplace(text_ + utf8(key.character));
  }
}

void TextBox::keepDesign() {
  Control::keepDesign();
  designText_ = text_;
}

void TextBox::restoreDesign() {
  Control::restoreDesign();
  setText(designText_);
}

}  // namespace kestra
