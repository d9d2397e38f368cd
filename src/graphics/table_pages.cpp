#include "graphics/table_pages.h"

#include <algorithm>

namespace kestra {
namespace {

constexpr double kFont = 6;  // points
constexpr double kMargin = 0.03;
constexpr double kGap = 0.012;  // between columns
constexpr double kLeading = 1.3;

// The drawing of one table, all lengths as parts of a page.
class Pages {
 public:
  Pages(const PageTable& table, const TextMetrics& metrics) : table_(table), metrics_(metrics) {
    rows_ = table.columns > 0 ? table.cells.size() / static_cast<std::size_t>(table.columns) : 0;
    line_ = metrics.measure("X", kFont, true).height * kLeading;
    const double room = 1 - 2 * kMargin - 3 * line_;  // below title and headings
    rowsOnPage_ = std::max<std::size_t>(1, static_cast<std::size_t>(std::max(room, 0.0) / line_));
    for (int column = 0; column < table.columns; ++column) widths_.push_back(widthOf(column));
  }

  std::vector<CanvasLog> draw() {
    for (std::size_t row = 1; row == 1 || row < rows_; row += rowsOnPage_) {
      int column = 1;
      do {
        const int behind = lastThatFits(column);
        drawPage(row, column, behind);
        column = behind;
      } while (column < table_.columns);
    }
    return std::move(pages_);
  }

 private:
  const std::string& cell(std::size_t row, int column) const {
    return table_.cells[row * static_cast<std::size_t>(table_.columns) + static_cast<std::size_t>(column)];
  }

  double widthOf(int column) const {
    double width = 0;
    for (std::size_t row = 0; row < rows_; ++row) {
      width = std::max(width, metrics_.measure(cell(row, column), kFont, row == 0).width);
    }
    return width + kGap;
  }

  // The column behind those that stand on one page from `first` on: at least one of them.
  int lastThatFits(int first) const {
    double right = kMargin + widths_[0];
    int column = first;
    while (column < table_.columns) {
      right += widths_[static_cast<std::size_t>(column)];
      if (column > first && right > 1 - kMargin) break;
      ++column;
    }
    return column;
  }

  void drawPage(std::size_t firstRow, int firstColumn, int behindColumn) {
    RecordingCanvas canvas;
    canvas.setMetrics(&metrics_);
    canvas.Cls();
    canvas.Scale(0, 0, 1, 1);
    canvas.FontSize(kFont);
    canvas.FontBold(true);
    canvas.moveTo(kMargin, kMargin);
    canvas.Print(std::string(table_.title) + ", page " + std::to_string(pages_.size() + 1));
    drawRow(canvas, 0, kMargin + 2 * line_, firstColumn, behindColumn);
    canvas.FontBold(false);
    const double rule = kMargin + 3 * line_;
    canvas.Line(kMargin, rule, 1 - kMargin, rule);
    const std::size_t behind = std::min(rows_, firstRow + rowsOnPage_);
    for (std::size_t row = firstRow; row < behind; ++row) {
      drawRow(canvas, row, rule + static_cast<double>(row - firstRow) * line_, firstColumn, behindColumn);
    }
    pages_.push_back(canvas.log());
  }

  void drawRow(AbstractCanvas& canvas, std::size_t row, double top, int firstColumn, int behindColumn) const {
    double left = kMargin;
    const auto print = [&](int column) {
      canvas.moveTo(left, top);
      if (!cell(row, column).empty()) canvas.Print(cell(row, column));
      left += widths_[static_cast<std::size_t>(column)];
    };
    print(0);
    for (int column = firstColumn; column < behindColumn; ++column) print(column);
  }

  const PageTable& table_;
  const TextMetrics& metrics_;
  std::size_t rows_ = 0;
  std::size_t rowsOnPage_ = 1;
  double line_ = 0;
  std::vector<double> widths_;
  std::vector<CanvasLog> pages_;
};

}  // namespace

std::vector<CanvasLog> tablePages(const PageTable& table, const TextMetrics& metrics) {
  if (table.columns < 1) return {};
  return Pages(table, metrics).draw();
}

}  // namespace kestra
