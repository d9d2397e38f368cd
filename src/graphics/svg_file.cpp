#include "graphics/svg_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kestra {
namespace {

// Text that grows, with the numbers and colours of an SVG file.
class SvgBrush : public PictureBrush {
 public:
  std::string take() { return std::move(text_); }

  void ground(PictureSize size, std::uint32_t color) override {
    add("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"");
    add(size.width, "\" height=\"").add(size.height, "\" viewBox=\"0 0 ").add(size.width, " ");
    add(size.height, "\" font-family=\"DejaVu Sans, Verdana, sans-serif\" xml:space=\"preserve\">\n");
    add("<rect width=\"100%\" height=\"100%\" fill=\"").addColor(color).add("\"/>\n");
  }

  void line(const std::vector<PicturePoint>& points, const Ink& ink) override {
    add("<polyline points=\"");
    for (const PicturePoint& point : points) add(point.x, ",").add(point.y, " ");
    add("\" fill=\"none\" stroke-linejoin=\"bevel\"").addStroke(ink).add("/>\n");
  }

  void box(PicturePoint corner, PicturePoint opposite, const Ink& ink, bool filled) override {
    add("<rect x=\"").add(std::min(corner.x, opposite.x), "\" y=\"").add(std::min(corner.y, opposite.y), "\" width=\"");
    add(std::fabs(opposite.x - corner.x), "\" height=\"").add(std::fabs(opposite.y - corner.y), "\"");
    finish(ink, filled);
  }

  void circle(PicturePoint centre, double radius, const Ink& ink, bool filled) override {
    add("<circle cx=\"").add(centre.x, "\" cy=\"").add(centre.y, "\" r=\"").add(radius, "\"");
    finish(ink, filled);
  }

  void text(PicturePoint upperLeft, std::string_view shown, const Letters& letters) override {
    constexpr double kAscent = 0.928;  // of the font named above, as a share of its size
    add("<text x=\"").add(upperLeft.x, "\" y=\"").add(upperLeft.y + kAscent * letters.size, "\" font-size=\"");
    add(letters.size, letters.bold ? "\" font-weight=\"bold\" fill=\"" : "\" fill=\"").addColor(letters.color);
    add("\">").addEscaped(shown).add("</text>\n");
  }

  bool invert(bool) override { return false; }

  SvgBrush& add(std::string_view piece) {
    text_ += piece;
    return *this;
  }

 private:
  SvgBrush& add(double number, std::string_view behind) {
    constexpr double kTenths = 10;
    constexpr double kFarthest = 1e9;
    const auto tenths = static_cast<long long>(std::nearbyint(std::clamp(number, -kFarthest, kFarthest) * kTenths));
    std::array<char, 24> digits;
    char* at = digits.data();
    if (tenths < 0) *at++ = '-';
    at = std::to_chars(at, digits.data() + digits.size(), std::llabs(tenths) / 10).ptr;
    if (tenths % 10 != 0) {
      *at++ = '.';
      *at++ = static_cast<char>('0' + std::llabs(tenths) % 10);
    }
    text_.append(digits.data(), at);
    return add(behind);
  }
  SvgBrush& addColor(std::uint32_t color) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    text_ += '#';
    for (const unsigned shift : {4U, 0U, 12U, 8U, 20U, 16U}) text_ += kDigits[(color >> shift) & 0xFU];
    return *this;
  }
  SvgBrush& addStroke(const Ink& ink) {
    add(" stroke=\"").addColor(ink.color).add("\" stroke-width=\"").add(ink.width, "\"");
    // Lengths of dash and gap as multiples of the pen's width.
    constexpr std::array<std::array<double, 6>, 5> kDashes = {{{}, {4, 2}, {1, 2}, {4, 2, 1, 2}, {4, 2, 1, 2, 1, 2}}};
    if (ink.style <= kSolid || ink.style >= static_cast<int>(kDashes.size())) return *this;
    add(" stroke-dasharray=\"");
    for (const double length : kDashes[static_cast<std::size_t>(ink.style)]) {
      if (length > 0) add(length * ink.width, " ");
    }
    return add("\"");
  }
  void finish(const Ink& ink, bool filled) {
    if (filled) {
      add(" fill=\"").addColor(ink.color).add("\"/>\n");
    } else {
      add(" fill=\"none\"").addStroke(ink).add("/>\n");
    }
  }
  SvgBrush& addEscaped(std::string_view shown) {
    for (const char c : shown) {
      switch (c) {
        case '&':
          add("&amp;");
          break;
        case '<':
          add("&lt;");
          break;
        case '>':
          add("&gt;");
          break;
        default:
          // Characters that no XML text may hold.
          text_ += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
      }
    }
    return *this;
  }

  std::string text_;
};

}  // namespace

std::string svgFile(const CanvasLog& drawing, PictureSize size) {
  SvgBrush brush;
  replay(drawing, size, size.width, brush);
  brush.add("</svg>\n");
  return brush.take();
}

}  // namespace kestra
