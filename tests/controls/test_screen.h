#pragma once

#include <string>
#include <vector>

#include "controls/screen_host.h"

namespace kestra {

// A screen that writes down what happens to it.
class TestScreen : public Screen {
 public:
  explicit TestScreen(const std::string& name = "frmTest") : Screen(name, "Test") {}

  bool holdsInput() const override { return true; }

  std::vector<std::string> log;
  bool maySayNo = false;

 protected:
  void load() override { log.push_back("load"); }
  void activate() override { log.push_back("activate"); }
  void unload() override { log.push_back("unload"); }
  bool queryUnload(CloseReason reason, bool bExiting) override {
    log.push_back(std::string(reason == CloseReason::userFrame ? "frame" : "program") + (bExiting ? " exiting" : ""));
    return bExiting || !maySayNo;
  }
};

// A host with one test screen; entering it is left to the test, once the controls are there.
struct Stage {
  bool bExiting = false;
  ScreenHost host{bExiting};
  TestScreen screen;
};

}  // namespace kestra
