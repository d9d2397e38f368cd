#pragma once

#include <functional>
#include <string>

#include "controls/control.h"

namespace kestra {

// A field for text. Its caret stands at the end of the text.
class TextBox : public Control {
 public:
  TextBox(Screen& screen, std::string name, std::string text = {}, int maxLength = 0);

  const std::string& text() const { return text_; }
  void setText(std::string text);
  int maxLength() const { return maxLength_; }  // characters; 0: no limit
  void setMaxLength(int maxLength) { maxLength_ = maxLength; }
  bool multiLine() const { return multiLine_; }
  void setMultiLine(bool multiLine) { multiLine_ = multiLine; }

  bool locked() const { return locked_; }  // shows its text and takes none from the user
  void setLocked(bool locked) { locked_ = locked; }

  void userReplace(std::string_view text);  // cut to maxLength
  void userKey(const Key& key) override;    // a character, Backspace, Enter in a field of several lines

  void keepDesign() override;
  void restoreDesign() override;

  std::function<void()> onChange;
  std::function<bool(const Key&)> onKeyPress;  // false refuses the key

 private:
  std::string text_;
  std::string designText_;
  int maxLength_;
  bool multiLine_ = false;
  bool locked_ = false;
};

}  // namespace kestra
