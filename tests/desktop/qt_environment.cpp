#include "desktop/qt_environment.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>
#include <utility>

namespace kestra {
namespace {

QStringList& warnings() {
  static QStringList kept;
  return kept;
}

void keep(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  (void)context;
  // A display that is none can't do everything and says so.
  const bool ofNoDisplay = text.startsWith(QLatin1String("This plugin does not support"));
  if (type != QtDebugMsg && type != QtInfoMsg && !ofNoDisplay) warnings().append(text);
}

// The toolkit for all tests of the program; without a display unless KESTRA_DISPLAY is set.
class Toolkit : public testing::Environment {
 public:
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("KESTRA_DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_RUNTIME_DIR", testing::TempDir().c_str());
    application_ = std::make_unique<QApplication>(count_, arguments_);
    qInstallMessageHandler(keep);
  }
  void TearDown() override {
    application_.reset();
    qInstallMessageHandler(nullptr);
  }

 private:
  int count_ = 1;
  char name_[5] = "test";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const testing::Environment* const kToolkit = testing::AddGlobalTestEnvironment(new Toolkit);

}  // namespace

std::string takeWarnings() {
  (void)kToolkit;
  return std::exchange(warnings(), {}).join(QLatin1Char('\n')).toStdString();
}

}  // namespace kestra
