#pragma once

#include <QWidget>
#include <vector>

#include "controls/table.h"

namespace kestra {

// Which line of a table is drawn over which: rows where points run along columns, else columns.
struct SketchLines {
  const Table* table = nullptr;
  bool alongColumns = false;
  int x = 0;
  int y = 1;
};

// A thumbnail of what a table holds, a line through its points: of the first of some tables that is on show.
class SketchWidget : public QWidget {
 public:
  explicit SketchWidget(QWidget* parent = nullptr);

  void add(const SketchLines& lines) { sources_.push_back(lines); }
  QSize sizeHint() const override;
  QPolygonF points() const;  // of the table, up to the first that lacks a value

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<SketchLines> sources_;
};

}  // namespace kestra
