#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <unordered_map>

#include "app/application.h"
#include "desktop/screen_view.h"

class QDialog;
class QMdiArea;
class QMdiSubWindow;

namespace kestra {

// The program's frame: the top screen's menus, and a window for every screen that is on show. It does nothing but
// follow the screens and pass on what the user does.
class Desk : public QMainWindow, public ScreenObserver, public ModalLoop {
 public:
  explicit Desk(Application& application);
  ~Desk() override;

  void start(const QString& commandLine);
  ScreenView& viewOf(Screen& screen);  // made on first use

  void run(Screen& screen) override;  // modally

  void screenChanged(Screen& screen) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void act(const std::function<void()>& action);
  void settle();       // the checks of the control that the focus has left
  void followFocus();  // the focus goes where the screens have put it
  void focusInside();  // into the window in front, whose keys are dead without it
  void takeFocusChange(QWidget* now);
  void takeActivation(const QMdiSubWindow* window);  // the user has brought a window to the front
  void arrange();                                    // windows as the screens are
  void place(Screen& screen);
  void moveInside(QMdiSubWindow& window);
  bool standsApart(const Screen& screen) const;
  QMdiSubWindow& windowOf(Screen& screen);
  void followMenus();
  void arrangeWindows(WindowArrangement arrangement);
  void followTitle(Screen& screen);
  void keepInput();  // that is not saved; and, when no command is under way, offers what was left behind
  void placeProgress();
  void showHelp();  // the topic of the screen in front
  void keepPlace();
  void restorePlace();

  Application& application_;
  QMdiArea* area_;
  std::unordered_map<const Screen*, std::unique_ptr<ScreenView>> views_;
  std::unordered_map<Screen*, QPointer<QMdiSubWindow>> windows_;
  Screen* modal_ = nullptr;
  QPointer<QDialog> dialog_;
  QPointer<QDialog> progress_;
  Control* current_ = nullptr;  // whose widget has the focus
  Control* wanted_ = nullptr;   // whose widget has got it; its checks and those of `current_` wait
  bool arranging_ = false;
  int depth_ = 0;  // of user actions within each other
  QTimer late_;
  QTimer focusLate_;
  QTimer keeping_;
};

}  // namespace kestra
