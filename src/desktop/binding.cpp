#include "desktop/binding.h"

#include <QAbstractSlider>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QVariant>
#include <cmath>

#include "controls/ranges.h"
#include "controls/simple_controls.h"
#include "desktop/canvas_binding.h"
#include "desktop/choice_bindings.h"
#include "desktop/qt_text.h"
#include "desktop/table_binding.h"
#include "desktop/text_bindings.h"

namespace kestra {
namespace {

class LabelBinding : public Binding {
 public:
  LabelBinding(Control& control, QLabel& label, const UserAction& act) : Binding(control, act), label_(label) {}
  QWidget* widget() const override { return &label_; }
  void follow(Property property) override {
    followWidget(property);
    if (property == Property::caption) label_.setText(shown(control().caption()));
  }

 private:
  QLabel& label_;
};

// A frame with a caption is a group box; one without is any widget.
class FrameBinding : public Binding {
 public:
  FrameBinding(Control& control, QWidget& frame, const UserAction& act)
      : Binding(control, act), frame_(frame), group_(qobject_cast<QGroupBox*>(&frame)) {}
  QWidget* widget() const override { return &frame_; }
  void follow(Property property) override {
    followWidget(property);
    if (property == Property::caption && group_ != nullptr) group_->setTitle(shown(control().caption()));
  }

 private:
  QWidget& frame_;
  QGroupBox* group_;
};

class ActionBinding : public Binding {
 public:
  ActionBinding(Menu& menu, QAction& action, const UserAction& act) : Binding(menu, act), menu_(menu), action_(action) {
    connect(&action, &QAction::triggered, this, [this] {
      this->act([this] { menu_.click(); });
      follow(Property::value);
    });
  }
  QWidget* widget() const override { return nullptr; }
  void follow(Property property) override {
    switch (property) {
      case Property::caption:
        action_.setText(shown(menu_.caption()));
        break;
      case Property::visible:
        action_.setVisible(menu_.ownVisible());
        break;
      case Property::enabled:
        action_.setEnabled(menu_.enabled());
        break;
      case Property::value:
        if (menu_.checked()) action_.setCheckable(true);
        action_.setChecked(menu_.checked());
        break;
      default:
        break;
    }
  }

 private:
  Menu& menu_;
  QAction& action_;
};

class TabsBinding : public Binding {
 public:
  TabsBinding(Tabs& tabs, QTabWidget& pages, const UserAction& act) : Binding(tabs, act), tabs_(tabs), pages_(pages) {
    for (int i = 0; i < pages.count(); ++i) {
      const QVariant shared = pages.widget(i)->property("contentOf");
      if (!shared.isValid()) continue;
      auto* const layout = new QVBoxLayout(pages.widget(i));
      layout->setContentsMargins(0, 0, 0, 0);
      share(shared.toInt());
    }
    connect(&pages, &QTabWidget::currentChanged, this, [this](int index) {
      if (index != tabs_.index()) this->act([this, index] { tabs_.userSelect(index); });
      follow(Property::value);
    });
  }
  QWidget* widget() const override { return &pages_; }
  void follow(Property property) override {
    followWidget(property);
    const QSignalBlocker quiet(pages_);
    if (property == Property::value) {
      pages_.setCurrentIndex(tabs_.index());
      bringContent();
    }
    if (property != Property::caption) return;
    for (int i = 0; i < pages_.count() && i < static_cast<int>(tabs_.captions().size()); ++i)
      pages_.setTabText(i, shown(tabs_.captions()[static_cast<std::size_t>(i)]));
  }

 private:
  // The content of a page that others show too stands in a widget of its own, which goes from page to page.
  void share(int owner) {
    if (shared_ != nullptr) return;
    owner_ = owner;
    QWidget* const page = pages_.widget(owner);
    shared_ = new QWidget;
    shared_->setLayout(page->layout());
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(shared_);
  }
  void bringContent() {
    QWidget* const page = pages_.currentWidget();
    if (shared_ == nullptr || page == nullptr || shared_->parentWidget() == page) return;
    const QVariant shows = page->property("contentOf");
    if (pages_.currentIndex() == owner_ || (shows.isValid() && shows.toInt() == owner_)) {
      page->layout()->addWidget(shared_);
      shared_->show();
    }
  }

  Tabs& tabs_;
  QTabWidget& pages_;
  QWidget* shared_ = nullptr;
  int owner_ = -1;
};

// Sliders and gauges count in whole numbers: a thousand steps between the limits.
constexpr int kSteps = 1000;

int stepOf(const Range& range) {
  const double span = range.maximum() - range.minimum();
  return span > 0 ? static_cast<int>(std::lround((range.value() - range.minimum()) / span * kSteps)) : 0;
}

class SliderBinding : public Binding {
 public:
  SliderBinding(Range& range, QAbstractSlider& slider, const UserAction& act)
      : Binding(range, act), range_(range), slider_(slider) {
    slider_.setRange(0, kSteps);
    connect(&slider, &QAbstractSlider::valueChanged, this, [this](int step) {
      const double span = range_.maximum() - range_.minimum();
      this->act([this, step, span] { range_.userMove(range_.minimum() + span * step / kSteps); });
    });
  }
  QWidget* widget() const override { return &slider_; }
  void follow(Property property) override {
    followWidget(property);
    const QSignalBlocker quiet(slider_);
    if (property == Property::value || property == Property::range) slider_.setValue(stepOf(range_));
  }

 private:
  Range& range_;
  QAbstractSlider& slider_;
};

class GaugeBinding : public Binding {
 public:
  GaugeBinding(Range& range, QProgressBar& bar, const UserAction& act) : Binding(range, act), range_(range), bar_(bar) {
    bar_.setRange(0, kSteps);
  }
  QWidget* widget() const override { return &bar_; }
  void follow(Property property) override {
    followWidget(property);
    if (property == Property::value || property == Property::range) bar_.setValue(stepOf(range_));
  }

 private:
  Range& range_;
  QProgressBar& bar_;
};

}  // namespace

void Binding::followAll() {
  for (const Property property : {Property::items, Property::caption, Property::range, Property::cells, Property::value,
                                  Property::cursor, Property::drawing, Property::enabled, Property::visible})
    follow(property);
}

void Binding::followWidget(Property property) {
  if (property == Property::visible) widget()->setVisible(control_.ownVisible());
  if (property == Property::enabled) widget()->setEnabled(control_.enabled());
}

std::unique_ptr<Binding> bindWidget(Control& control, QWidget& widget, const UserAction& act) {
  switch (control.kind()) {
    case ControlKind::label:
      return join<LabelBinding, Control, QLabel>(control, widget, act);
    case ControlKind::frame:
      return std::make_unique<FrameBinding>(control, widget, act);
    case ControlKind::tabs:
      return join<TabsBinding, Tabs, QTabWidget>(control, widget, act);
    case ControlKind::slider:
      return join<SliderBinding, Range, QAbstractSlider>(control, widget, act);
    case ControlKind::gauge:
      return join<GaugeBinding, Range, QProgressBar>(control, widget, act);
    case ControlKind::text:
      if (auto readOut = bindReadOut(control, widget, act)) return readOut;
      return bindTextBox(control, widget, act);
    case ControlKind::table:
      return bindTable(control, widget, act);
    case ControlKind::canvas:
      return bindCanvas(control, widget, act);
    case ControlKind::menu:
      return nullptr;
    default:
      return bindChoice(control, widget, act);
  }
}

std::unique_ptr<Binding> bindAction(Control& control, QAction& action, const UserAction& act) {
  if (control.kind() != ControlKind::menu) return nullptr;
  return std::make_unique<ActionBinding>(dynamic_cast<Menu&>(control), action, act);
}

}  // namespace kestra
