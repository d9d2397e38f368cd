#include "desktop/sketch_widget.h"

#include <gtest/gtest.h>

#include "desktop/shown_desk.h"

namespace kestra {
namespace {

TEST(Sketch, drawsThePointsOfTheTableOnShow) {
  ShownDesk desk;
  desk.show(desk.shell.input.damSurface);
  auto* const sketch = dynamic_cast<SketchWidget*>(
      desk.window.viewOf(desk.shell.input.damSurface).findChild<QWidget*>(QStringLiteral("sketch")));
  ASSERT_NE(sketch, nullptr);
  EXPECT_TRUE(sketch->points().isEmpty());
  Table& crest = desk.shell.input.damSurface.grdTable;
  crest.userSetBlock({1, 1}, {{"0", "30", "120", ""}, {"1026", "1024.2", "1024", "9"}});
  const QPolygonF points({{0, 1026}, {30, 1024.2}, {120, 1024}});
  EXPECT_EQ(sketch->points(), points);
}

TEST(Sketch, followsTheChoiceBetweenTables) {
  ShownDesk desk;
  frmHydrographData& screen = desk.shell.input.hydrographData;
  desk.show(screen);
  auto* const sketch =
      dynamic_cast<SketchWidget*>(desk.window.viewOf(screen).findChild<QWidget*>(QStringLiteral("sketch")));
  ASSERT_NE(sketch, nullptr);
  screen.grdTable.userSetBlock({1, 1}, {{"4"}, {"11"}});
  desk.press(screen.optVariable);
  screen.varTable.userSetBlock({1, 0}, {{"0.5", "7"}, {"2", "9"}});
  EXPECT_EQ(sketch->points(), QPolygonF({{0.5, 7}, {2, 9}}));
}

}  // namespace
}  // namespace kestra
