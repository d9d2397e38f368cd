#pragma once

#include <string>
#include <vector>

#include "graphics/picture_maker.h"
#include "platform/printer.h"

namespace kestra {

// Pictures that tell what they are made of, "form 0, 800x600, 1 drawing: TEXT TEXT...", and can be made to fail.
struct FakePictures : PictureMaker {
  Result<std::string> make(const std::vector<const CanvasLog*>& drawings, PictureForm form, PictureSize size) override {
    if (fails) return Failure{FailureKind::other, {}, "no colours left"};
    std::string text = "form " + std::to_string(static_cast<int>(form)) + ", " + std::to_string(size.width) + "x" +
                       std::to_string(size.height) + ", " + std::to_string(drawings.size()) + ":";
    for (const CanvasCall& call : drawings.at(0)->calls()) {
      if (call.op == CanvasOp::Print) text += " " + drawings[0]->textOf(call);
    }
    return text.substr(0, 40);
  }
  const TextMetrics& metrics(PictureSize) override { return fixed; }

  struct Fixed : TextMetrics {
    TextSize measure(std::string_view text, double, bool) const override { return fixedTextSize(text); }
  };
  Fixed fixed;
  bool fails = false;
};

struct FakePrinter : Printer {
  Status print(const std::string& pdf, const PrintChoice& choice) override {
    printed += pdf + ", copies " + std::to_string(choice.copies);
    if (jammed) return Failure{FailureKind::other, "lp", "paper jam"};
    return Done();
  }
  std::string printed;
  bool jammed = false;
};

}  // namespace kestra
