#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "desktop/desk.h"
#include "desktop/qt_desk.h"
#include "desktop/qt_environment.h"
#include "desktop/qt_text.h"
#include "support/temp_directory.h"

namespace kestra {

// Answers the box or dialog that comes up next, which has to come while this lives.
class NextBox {
 public:
  explicit NextBox(std::function<void(QDialog&)> answer) : answer_(std::move(answer)) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
    timer_.start(kMilliseconds);
  }
  ~NextBox() { EXPECT_TRUE(answered_) << "no box came up"; }
  NextBox(const NextBox&) = delete;
  NextBox& operator=(const NextBox&) = delete;

  static std::function<void(QDialog&)> pressing(Qt::Key key) {
    return [key](QDialog& box) { QTest::keyClick(&box, key); };
  }
  // Types a name into a file dialog and confirms it.
  static std::function<void(QDialog&)> naming(const std::string& path) {
    return [path](QDialog& dialog) {
      auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      ASSERT_NE(name, nullptr);
      QTest::qWait(kSettling);
      name->setFocus();
      name->clear();
      QTest::keyClicks(name, shown(path));
      QTest::keyClick(name, Qt::Key_Return);
    };
  }

 private:
  static constexpr int kMilliseconds = 5;
  static constexpr int kSettling = 100;  // in which a file dialog reads its directory

  void look() {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    const bool asks = qobject_cast<QMessageBox*>(box) != nullptr || qobject_cast<QFileDialog*>(box) != nullptr;
    if (answered_ || !asks) return;
    answered_ = true;
    timer_.stop();
    answer_(*box);
  }

  std::function<void(QDialog&)> answer_;
  QTimer timer_;
  bool answered_ = false;
};

// Takes away, and counts as a failure, a box that nobody answers.
class BoxGuard {
 public:
  BoxGuard() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
    timer_.start(kMilliseconds);
  }

 private:
  static constexpr int kMilliseconds = 1000;

  void look() {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    const bool asks = qobject_cast<QMessageBox*>(box) != nullptr || qobject_cast<QFileDialog*>(box) != nullptr;
    const bool stays = asks && box == seen_;
    seen_ = asks ? box : nullptr;
    if (!stays) return;
    const auto* const message = qobject_cast<QMessageBox*>(box);
    ADD_FAILURE() << "nobody answers: " << told(message != nullptr ? message->text() : box->windowTitle());
    box->reject();
  }

  QTimer timer_;
  QPointer<QDialog> seen_;
};

// The program as it is started, in a directory of its own, on real files, with the real engine beside it.
struct RealDesk {
  explicit RealDesk(const QString& programs = QStringLiteral(KESTRA_BIN_DIR))
      : ports({{}, programs, shown(folder.at("settings.ini"))}) {
    std::filesystem::current_path(folder.path());
    window.start({});
    QTest::qWait(0);
  }
  ~RealDesk() { std::filesystem::current_path(before); }
  RealDesk(const RealDesk&) = delete;
  RealDesk& operator=(const RealDesk&) = delete;

  QWidget& widget(Control& control) { return *window.viewOf(control.screen()).widgetOf(control); }
  void click(Control& control) {
    QTest::mouseClick(&widget(control), Qt::LeftButton);
    QTest::qWait(0);
  }
  void type(Control& field, const std::string& text) {
    widget(field).setFocus();
    QTest::keyClicks(&widget(field), shown(text));
    QTest::qWait(0);
  }
  void key(Qt::Key key, Qt::KeyboardModifiers with) {
    constexpr int kPatience = 500;  // milliseconds; a display gives the focus when it likes
    window.activateWindow();
    (void)QTest::qWaitForWindowActive(&window, kPatience);
    QTest::qWait(0);
    QTest::keyClick(&window, key, with);
    QTest::qWait(0);
  }
  // Keeps a picture of the window where the run of the tests wants pictures.
  void picture(const char* name) {
    const QString pictures = qEnvironmentVariable("KESTRA_SCREENSHOTS");
    if (pictures.isEmpty()) return;
    EXPECT_TRUE(window.grab().save(QStringLiteral("%1/%2.png").arg(pictures, QLatin1String(name)))) << name;
  }
  Screen& front() { return *app.host.shown().front(); }

  std::filesystem::path before = std::filesystem::current_path();
  TempDirectory folder;
  QtDesk ports;
  Application app{ports.ports(), ports.applicationDirectory()};
  Shell& shell = app.shell;
  Desk window{app};
  BoxGuard guard;
};

}  // namespace kestra
