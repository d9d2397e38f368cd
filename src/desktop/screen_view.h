#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "controls/screen.h"
#include "desktop/binding.h"

class QMenuBar;

namespace kestra {

class SketchWidget;

// A screen's window content, made from its form (the .ui file of the screen's name) with every control joined to the
// widget of its name.
class ScreenView : public QWidget, public ScreenObserver {
 public:
  ScreenView(Screen& screen, UserAction act);
  ~ScreenView() override;

  Screen& screen() const { return screen_; }
  QWidget* widgetOf(const Control& control) const;                      // null when it has none
  QMenuBar* menus() const { return menus_; }                            // null for a screen without menus
  const std::vector<std::string>& unbound() const { return unbound_; }  // controls that have no widget
  bool hasForm() const { return form_ != nullptr; }

  std::function<void()> onScreenChanged;

  void controlChanged(Control& control, Property property) override;
  void screenChanged(Screen& screen) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void bindAll();
  void giveTablesTheirMenu();
  void joinSketch();
  void showToolsInUse();
  void tellSize();

  Screen& screen_;
  UserAction act_;
  QWidget* form_ = nullptr;
  QMenuBar* menus_ = nullptr;
  SketchWidget* sketch_ = nullptr;
  QTimer resized_;
  std::unordered_map<const Control*, std::unique_ptr<Binding>> bindings_;
  std::vector<std::string> unbound_;
};

// The control that a widget, or one that it stands in, shows; null when there is none.
Control* controlOf(QWidget* widget);

}  // namespace kestra
