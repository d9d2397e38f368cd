#include "desktop/choice_bindings.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTimer>
#include <QTreeView>

#include "controls/choices.h"
#include "controls/directory_list.h"
#include "controls/simple_controls.h"
#include "desktop/qt_text.h"

namespace kestra {
namespace {

QStringList shownItems(const std::vector<std::string>& items) {
  QStringList texts;
  for (const std::string& item : items) texts.append(shown(item));
  return texts;
}

// A push button, a check box or an option.
class ButtonBinding : public Binding {
 public:
  ButtonBinding(Control& control, QAbstractButton& button, const UserAction& act)
      : Binding(control, act), button_(button) {
    button.setAutoExclusive(false);
    connect(&button, &QAbstractButton::clicked, this, [this] {
      this->act([this] { press(); });
      follow(Property::value);
    });
  }
  QWidget* widget() const override { return &button_; }
  void follow(Property property) override {
    followWidget(property);
    if (property == Property::caption) button_.setText(shown(control().caption()));
    if (property == Property::value) followState();
  }

 private:
  void press() {
    if (auto* const check = dynamic_cast<CheckBox*>(&control())) return check->userSet(!check->checked());
    if (auto* const option = dynamic_cast<OptionButton*>(&control())) return option->userSelect();
    if (control().visible() && control().enabled()) dynamic_cast<Command&>(control()).click();
  }
  void followState() {
    if (const auto* const check = dynamic_cast<CheckBox*>(&control())) button_.setChecked(check->checked());
    if (const auto* const option = dynamic_cast<OptionButton*>(&control())) button_.setChecked(option->selected());
  }

  QAbstractButton& button_;
};

class ComboBinding : public Binding {
 public:
  ComboBinding(ChoiceList& choice, QComboBox& box, const UserAction& act)
      : Binding(choice, act), choice_(choice), box_(box) {
    box.setEditable(choice.editable());
    box.installEventFilter(this);
    connect(&box, &QComboBox::activated, this, [this](int index) {
      this->act([this, index] { choice_.userSelect(index); });
      follow(Property::value);
    });
    if (!choice.editable()) return;
    connect(box.lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& text) { this->act([this, &text] { choice_.userSelect(told(text)); }); });
  }
  QWidget* widget() const override { return &box_; }
  void follow(Property property) override {
    followWidget(property);
    const QSignalBlocker quiet(box_);
    if (property == Property::items) {
      box_.clear();
      box_.addItems(shownItems(choice_.items()));
    }
    if (property != Property::items && property != Property::value) return;
    box_.setCurrentIndex(choice_.index());
    if (choice_.editable() && box_.currentText() != shown(choice_.text())) box_.setEditText(shown(choice_.text()));
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool pressed = event->type() == QEvent::KeyPress && choice_.onKeyPress != nullptr;
    const int key = pressed ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return Binding::eventFilter(watched, event);
    act([this] { choice_.userKey({kEnter, {}}); });
    return true;
  }

 private:
  ChoiceList& choice_;
  QComboBox& box_;
};

class ListBinding : public Binding {
 public:
  ListBinding(ChoiceList& choice, QListWidget& list, const UserAction& act)
      : Binding(choice, act), choice_(choice), list_(list) {
    connect(&list, &QListWidget::currentRowChanged, this, [this](int row) {
      if (row >= 0 && row != choice_.index()) this->act([this, row] { choice_.userSelect(row); });
    });
    connect(&list, &QListWidget::itemActivated, this, [this] { this->act([this] { choice_.userDoubleClick(); }); });
  }
  QWidget* widget() const override { return &list_; }
  void follow(Property property) override {
    followWidget(property);
    const QSignalBlocker quiet(list_);
    if (property == Property::items) {
      list_.clear();
      list_.addItems(shownItems(choice_.items()));
    }
    if (property == Property::items || property == Property::value) list_.setCurrentRow(choice_.index());
  }

 private:
  ChoiceList& choice_;
  QListWidget& list_;
};

class DirectoryBinding : public Binding {
 public:
  DirectoryBinding(DirectoryList& list, QTreeView& tree, const UserAction& act)
      : Binding(list, act), list_(list), tree_(tree) {
    model_.setFilter(QDir::Dirs | QDir::NoDotAndDotDot);
    model_.setRootPath(QStringLiteral("/"));
    tree.setModel(&model_);
    tree.setHeaderHidden(true);
    for (int column = 1; column < model_.columnCount(); ++column) tree.hideColumn(column);
    late_.setSingleShot(true);
    late_.setInterval(kSettling);
    connect(&late_, &QTimer::timeout, this, [this] { reveal(); });
    const auto settle = [this] {
      if (!tree_.hasFocus()) late_.start();
    };
    connect(&model_, &QFileSystemModel::directoryLoaded, this, settle);
    connect(&model_, &QFileSystemModel::rowsInserted, this, settle);
    connect(&model_, &QFileSystemModel::layoutChanged, this, settle);
    connect(tree.selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& at) {
      if (!at.isValid()) return late_.start();  // its row was made anew; the choice is what it was
      const std::string path = told(model_.filePath(at));
      if (path != list_.path()) this->act([this, &path] { list_.userChoose(path); });
    });
  }
  QWidget* widget() const override { return &tree_; }
  void follow(Property property) override {
    followWidget(property);
    if (property != Property::value || list_.path().empty()) return;
    const QModelIndex at = model_.index(shown(list_.path()));
    if (!at.isValid() || at == tree_.currentIndex()) return;
    tree_.setCurrentIndex(at);
    tree_.expand(at);
    late_.start();
  }

 private:
  static constexpr int kSettling = 50;  // milliseconds after the last directory that was read above the choice

  void reveal() {
    const QModelIndex at = list_.path().empty() ? QModelIndex() : model_.index(shown(list_.path()));
    if (!at.isValid()) return;
    tree_.setCurrentIndex(at);
    tree_.scrollTo(at, QAbstractItemView::PositionAtCenter);
  }

  DirectoryList& list_;
  QTreeView& tree_;
  QFileSystemModel model_;
  QTimer late_;
};

}  // namespace

std::unique_ptr<Binding> bindChoice(Control& control, QWidget& widget, const UserAction& act) {
  switch (control.kind()) {
    case ControlKind::button:
    case ControlKind::check:
    case ControlKind::option:
      return join<ButtonBinding, Control, QAbstractButton>(control, widget, act);
    case ControlKind::combo:
      return join<ComboBinding, ChoiceList, QComboBox>(control, widget, act);
    case ControlKind::list:
      return join<ListBinding, ChoiceList, QListWidget>(control, widget, act);
    case ControlKind::directory:
      return join<DirectoryBinding, DirectoryList, QTreeView>(control, widget, act);
    default:
      return nullptr;
  }
}

}  // namespace kestra
