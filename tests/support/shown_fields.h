#pragma once

#include <gtest/gtest.h>

#include <string>

#include "controls/screen.h"

namespace kestra {

// The text fields on show without their "txt", in the order of their making: "CrestWidth UpSlope". Each has to be on
// show together with its label.
inline std::string shownFields(const Screen& screen) {
  std::string names;
  for (const Control* control : screen.controls()) {
    if (control->kind() != ControlKind::text) continue;
    const std::string name = control->name().substr(3);
    const Control* label = screen.find("lbl" + name);
    EXPECT_TRUE(label == nullptr || label->visible() == control->visible()) << name;
    if (control->visible()) names += (names.empty() ? "" : " ") + name;
  }
  return names;
}

// Caption of a control by its name; the test fails where there is none.
inline std::string captionOf(const Screen& screen, const std::string& name) {
  const Control* control = screen.find(name);
  EXPECT_NE(control, nullptr) << name;
  return control == nullptr ? "" : control->caption();
}

}  // namespace kestra
