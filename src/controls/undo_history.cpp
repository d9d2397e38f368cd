#include "controls/undo_history.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "controls/screen.h"
#include "controls/table.h"

namespace kestra {
namespace {

// Cells of one table, in the order in which they were written. Their texts stand in one piece, since a step may hold
// thousands of them.
class KeptCells : public UndoChange {
 public:
  explicit KeptCells(Table& table) : table_(table) {}

  bool isOf(const Table& table) const { return &table == &table_; }
  void add(std::size_t index, std::string_view text) {
    cells_.push_back({static_cast<std::uint32_t>(index), static_cast<std::uint32_t>(text.size())});
    texts_ += text;
  }
  void settle() override {
    cells_.shrink_to_fit();
    texts_.shrink_to_fit();
  }
  // From the last one to the first, which leaves them in the opposite order for the next time.
  void swap() override {
    KeptCells exchanged(table_);
    exchanged.cells_.reserve(cells_.size());
    std::size_t end = texts_.size();
    for (auto cell = cells_.rbegin(); cell != cells_.rend(); ++cell) {
      end -= cell->length;
      std::string text = texts_.substr(end, cell->length);
      table_.swapCell(cell->index, text);
      exchanged.add(cell->index, text);
    }
    cells_ = std::move(exchanged.cells_);
    texts_ = std::move(exchanged.texts_);
    undo_detail::tell(table_, Property::cells);
  }
  Place what() const override { return {&table_, cells_.front().index}; }
  bool keepsOne() const override { return cells_.size() == 1; }
  std::size_t bytes() const override { return sizeof *this + cells_.capacity() * sizeof cells_[0] + texts_.capacity(); }

 private:
  struct Cell {
    std::uint32_t index;
    std::uint32_t length;  // bytes of its text
  };

  Table& table_;
  std::vector<Cell> cells_;
  std::string texts_;
};

}  // namespace

namespace undo_detail {

void tell(Control& control, Property property) {
  control.tellChanged(property);
}

}  // namespace undo_detail

void UndoHistory::beginGesture(const Control* place, std::size_t cell) {
  if (depth_++ > 0) return;
  open_ = Step();
  open_.place = place;
  open_.cell = cell;
}

void UndoHistory::endGesture() {
  if (--depth_ > 0 || applying_) return;
  Step step = std::move(open_);
  open_ = Step();
  // Any other gesture in between parts what is typed before it from what is typed behind it.
  if (step.place == nullptr && !done_.empty()) done_.back().place = nullptr;
  if (step.hasData) take(std::move(step));
}

void UndoHistory::keepCell(Table& table, std::size_t index, const std::string& text) {
  if (!recording()) return;
  auto* last = open_.changes.empty() ? nullptr : dynamic_cast<KeptCells*>(open_.changes.back().get());
  if (last == nullptr || !last->isOf(table)) {
    auto cells = std::make_unique<KeptCells>(table);
    last = cells.get();
    add(std::move(cells), true);
  }
  last->add(index, text);
}

void UndoHistory::add(std::unique_ptr<UndoChange> change, bool isData) {
  open_.changes.push_back(std::move(change));
  open_.hasData = open_.hasData || isData;
}

// Keys typed into one place are one step, and so is what a step begins and a later gesture goes on with.
bool UndoHistory::joinsLast(const Step& step) const {
  if (done_.empty()) return false;
  const Step& last = done_.back();
  const auto isContinued = [&step](const auto& change) { return change->control() == step.continues; };
  if (step.continues != nullptr) return std::any_of(last.changes.begin(), last.changes.end(), isContinued);
  return step.place != nullptr && undone_.empty() && last.place == step.place && last.cell == step.cell;
}

// Takes a finished step in, or joins it to the one before it.
void UndoHistory::take(Step step) {
  for (const auto& change : step.changes) {
    change->settle();
    step.bytes += change->bytes();
  }
  const bool joins = joinsLast(step);
  undone_.clear();
  if (joins) {
    bytes_ -= done_.back().bytes;
    join(done_.back(), std::move(step));
  } else {
    done_.push_back(std::move(step));
  }
  bytes_ += done_.back().bytes;
  trim();
}

// Puts a step behind another. Of a value that both keep only the older text is needed.
void UndoHistory::join(Step& last, Step step) {
  const auto isKept = [&last](const UndoChange& change) {
    return change.keepsOne() && std::any_of(last.changes.begin(), last.changes.end(), [&change](const auto& kept) {
             return kept->keepsOne() && kept->what() == change.what();
           });
  };
  for (auto& change : step.changes) {
    if (isKept(*change)) continue;
    last.bytes += change->bytes();
    last.changes.push_back(std::move(change));
  }
}

void UndoHistory::trim() {
  while (done_.size() > kMostSteps || (bytes_ > kMostBytes && done_.size() > 1)) {
    bytes_ -= done_.front().bytes;
    done_.pop_front();
  }
}

void UndoHistory::swapAll(Step& step, bool backwards) {
  if (backwards) {
    for (auto at = step.changes.rbegin(); at != step.changes.rend(); ++at) (*at)->swap();
  } else {
    for (auto& change : step.changes) change->swap();
  }
}

bool UndoHistory::undo() {
  if (done_.empty()) return false;
  applying_ = true;
  Step step = std::move(done_.back());
  done_.pop_back();
  swapAll(step, true);
  bytes_ -= step.bytes;
  step.place = nullptr;
  undone_.push_back(std::move(step));
  applying_ = false;
  return true;
}

bool UndoHistory::redo() {
  if (undone_.empty()) return false;
  applying_ = true;
  Step step = std::move(undone_.back());
  undone_.pop_back();
  swapAll(step, false);
  bytes_ += step.bytes;
  done_.push_back(std::move(step));
  applying_ = false;
  return true;
}

void UndoHistory::clear() {
  done_.clear();
  undone_.clear();
  open_ = Step();
  bytes_ = 0;
}

}  // namespace kestra
