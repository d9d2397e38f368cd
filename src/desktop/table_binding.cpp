#include "desktop/table_binding.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableView>
#include <QTimer>
#include <algorithm>

#include "desktop/qt_text.h"
#include "desktop/table_model.h"
#include "desktop/text_bindings.h"

namespace kestra {
namespace {

constexpr int kTwipsPerInch = 1440;

class TableBinding : public Binding {
 public:
  TableBinding(Table& table, QTableView& view, const UserAction& act)
      : Binding(table, act), table_(table), view_(view), model_(table) {
    view.setModel(&model_);
    view.setSelectionMode(QAbstractItemView::ContiguousSelection);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setTabKeyNavigation(false);
    view.setWordWrap(false);
    view.horizontalHeader()->setVisible(table.fixedRows() > 0);
    view.verticalHeader()->setVisible(table.fixedColumns() > 0);
    view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + kRowMargin);
    view.installEventFilter(this);
    late_.setSingleShot(true);
    late_.setInterval(0);
    connect(&late_, &QTimer::timeout, this, [this] { followCells(); });
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { takeSelection(); });
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { takeSelection(); });
    connect(&view, &QTableView::doubleClicked, this, [this] { this->act([this] { table_.userDoubleClick(); }); });
  }

  QWidget* widget() const override { return &view_; }

  void follow(Property property) override {
    followWidget(property);
    if (property == Property::cells) late_.start();
    if (property == Property::cursor) followCursor();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return Binding::eventFilter(watched, event);
    return takeKey(*static_cast<QKeyEvent*>(event));
  }

 private:
  static constexpr int kRowMargin = 6;
  static constexpr int kFewRows = 8;

  // A table of few rows is as high as they are.
  void fitHeight() {
    const int rows = table_.rows() - table_.fixedRows();
    if (rows > kFewRows) return letGrow();
    const int heading = view_.horizontalHeader()->isHidden() ? 0 : view_.horizontalHeader()->sizeHint().height();
    const int bar = view_.horizontalScrollBar()->sizeHint().height();
    view_.setFixedHeight(heading + rows * view_.verticalHeader()->defaultSectionSize() + bar + 2 * view_.frameWidth());
  }

  void letGrow() {
    constexpr int kLeastHeight = 120;
    if (view_.maximumHeight() == QWIDGETSIZE_MAX) return;
    view_.setMinimumHeight(kLeastHeight);
    view_.setMaximumHeight(QWIDGETSIZE_MAX);
  }

  bool takeKey(const QKeyEvent& press) {
    if ((press.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != 0) return false;
    const Key key = keyOf(press.key(), press.text());
    const bool arrow = key.name == "Left" || key.name == "Right" || key.name == "Up" || key.name == "Down";
    if (arrow && (press.modifiers() & Qt::ShiftModifier) != 0) return false;
    const bool written = key.character == kEnter || key.character == kBackspace || key.character >= U' ';
    if (!arrow && !written) return false;
    act([this, &key] { table_.userKey(key); });
    return true;
  }

  void takeSelection() {
    if (following_) return;
    const QModelIndex current = view_.currentIndex();
    if (!current.isValid()) return;
    const QItemSelection selection = view_.selectionModel()->selection();
    const CellPosition from = model_.positionOf(current);
    CellPosition to = from;
    if (!selection.isEmpty()) {
      const QItemSelectionRange& block = selection.front();
      const CellPosition first = model_.positionOf(block.topLeft());
      const CellPosition last = model_.positionOf(block.bottomRight());
      to = {from.row == first.row ? last.row : first.row, from.column == first.column ? last.column : first.column};
    }
    if (from == table_.cursor() && to == table_.corner()) return;
    following_ = true;
    act([this, from, to] { table_.userSelect(from, to); });
    following_ = false;
  }

  // A table with a font of its own lists results: nobody types in it, and its columns are as wide as what they hold.
  bool lists() const { return !table_.fontName().empty(); }

  void followFont() {
    if (!lists() || told(view_.font().family()) == table_.fontName()) return;
    QFont font(shown(table_.fontName()));
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(view_.font().pointSizeF());
    view_.setFont(font);
  }

  void followCells() {
    following_ = true;
    model_.refresh();
    followFont();
    fitHeight();
    for (int row = table_.fixedRows(); row < table_.rows(); ++row)
      view_.setRowHidden(row - table_.fixedRows(), !table_.rowShown(row));
    for (int column = table_.fixedColumns(); column < table_.columns(); ++column) {
      const int section = column - table_.fixedColumns();
      const int asked = table_.columnWidth(column) * view_.logicalDpiX() / kTwipsPerInch;
      const int held = lists() ? static_cast<const QAbstractItemView&>(view_).sizeHintForColumn(section) : 0;
      view_.setColumnWidth(section, std::max({asked, held, view_.horizontalHeader()->sectionSizeHint(section)}));
    }
    following_ = false;
    followCursor();
  }

  void followCursor() {
    if (following_) return;
    const QModelIndex from = model_.indexOf(table_.cursor());
    const QModelIndex to = model_.indexOf(table_.corner());
    if (!from.isValid() || !to.isValid()) return;
    following_ = true;
    view_.selectionModel()->setCurrentIndex(from, QItemSelectionModel::NoUpdate);
    view_.selectionModel()->select(QItemSelection(from, to), QItemSelectionModel::ClearAndSelect);
    view_.scrollTo(from);
    following_ = false;
  }

  Table& table_;
  QTableView& view_;
  TableModel model_;
  QTimer late_;
  bool following_ = false;
};

}  // namespace

std::unique_ptr<Binding> bindTable(Control& control, QWidget& widget, const UserAction& act) {
  auto* const view = qobject_cast<QTableView*>(&widget);
  if (view == nullptr) return nullptr;
  return std::make_unique<TableBinding>(dynamic_cast<Table&>(control), *view, act);
}

}  // namespace kestra
