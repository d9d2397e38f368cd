#include "desktop/text_bindings.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <array>

#include "controls/text_box.h"
#include "desktop/qt_text.h"

namespace kestra {
namespace {

struct NamedKey {
  int key;
  const char* name;
};

constexpr std::array<NamedKey, 14> kNamedKeys = {{{Qt::Key_Left, "Left"},
                                                  {Qt::Key_Right, "Right"},
                                                  {Qt::Key_Up, "Up"},
                                                  {Qt::Key_Down, "Down"},
                                                  {Qt::Key_PageUp, "PageUp"},
                                                  {Qt::Key_PageDown, "PageDown"},
                                                  {Qt::Key_Home, "Home"},
                                                  {Qt::Key_End, "End"},
                                                  {Qt::Key_Delete, "Delete"},
                                                  {Qt::Key_Insert, "Insert"},
                                                  {Qt::Key_Escape, "Escape"},
                                                  {Qt::Key_F1, "F1"},
                                                  {Qt::Key_F2, "F2"},
                                                  {Qt::Key_F5, "F5"}}};

// Lets the control refuse a character before its field takes it.
class KeyFilter : public QObject {
 public:
  KeyFilter(TextBox& box, QObject* parent) : QObject(parent), box_(box) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !box_.onKeyPress) return QObject::eventFilter(watched, event);
    const auto* const press = static_cast<QKeyEvent*>(event);
    if ((press->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) return false;
    if (press->key() == Qt::Key_Tab || press->key() == Qt::Key_Backtab) return false;  // they lead to the next field
    const Key key = keyOf(press->key(), press->text());
    return key.character != 0 && !box_.onKeyPress(key);
  }

 private:
  TextBox& box_;
};

class LineBinding : public Binding {
 public:
  LineBinding(TextBox& box, QLineEdit& line, const UserAction& act) : Binding(box, act), box_(box), line_(line) {
    if (box.maxLength() > 0) line.setMaxLength(box.maxLength());
    line.installEventFilter(new KeyFilter(box, this));
    connect(&line, &QLineEdit::textEdited, this, [this](const QString& text) {
      this->act([this, &text] { box_.userReplace(told(text)); });
      follow(Property::value);
    });
  }
  QWidget* widget() const override { return &line_; }
  void follow(Property property) override {
    followWidget(property);
    line_.setReadOnly(box_.locked());
    const QString text = shown(box_.text());
    if (property == Property::value && line_.text() != text) line_.setText(text);
  }

 private:
  TextBox& box_;
  QLineEdit& line_;
};

class LinesBinding : public Binding {
 public:
  LinesBinding(TextBox& box, QPlainTextEdit& lines, const UserAction& act)
      : Binding(box, act), box_(box), lines_(lines) {
    lines.setTabChangesFocus(true);
    lines.installEventFilter(new KeyFilter(box, this));
    connect(&lines, &QPlainTextEdit::textChanged, this, [this] {
      const std::string text = told(lines_.toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n")));
      if (text == box_.text()) return;
      this->act([this, &text] { box_.userReplace(text); });
      follow(Property::value);
    });
  }
  QWidget* widget() const override { return &lines_; }
  void follow(Property property) override {
    followWidget(property);
    lines_.setReadOnly(box_.locked());
    if (box_.locked()) lines_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (property != Property::value) return;
    const QString text = shown(box_.text()).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (lines_.toPlainText() == text) return;
    const QSignalBlocker quiet(lines_);
    lines_.setPlainText(text);
  }

 private:
  TextBox& box_;
  QPlainTextEdit& lines_;
};

}  // namespace

std::unique_ptr<Binding> bindTextBox(Control& control, QWidget& widget, const UserAction& act) {
  auto& box = dynamic_cast<TextBox&>(control);
  if (auto* const line = qobject_cast<QLineEdit*>(&widget)) return std::make_unique<LineBinding>(box, *line, act);
  if (auto* const lines = qobject_cast<QPlainTextEdit*>(&widget))
    return std::make_unique<LinesBinding>(box, *lines, act);
  return nullptr;
}

Key keyOf(int key, const QString& text) {
  if (key == Qt::Key_Return || key == Qt::Key_Enter) return {kEnter, {}};
  if (key == Qt::Key_Backspace) return {kBackspace, {}};
  for (const NamedKey& named : kNamedKeys)
    if (named.key == key) return {0, named.name};
  const auto characters = text.toUcs4();
  return characters.isEmpty() ? Key{} : Key{static_cast<char32_t>(characters.front()), {}};
}

}  // namespace kestra
