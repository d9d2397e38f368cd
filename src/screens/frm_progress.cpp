#include "screens/frm_progress.h"

#include "screens/dam_picture.h"

namespace kestra {
namespace {

constexpr std::int64_t kNsInSecond = 1'000'000'000;

std::string minutesAndSeconds(std::int64_t ns) {
  const std::int64_t seconds = ns / kNsInSecond;
  const std::string rest = std::to_string(seconds % 60);
  return std::to_string(seconds / 60) + (rest.size() == 1 ? ":0" : ":") + rest;
}

}  // namespace

frmProgress::frmProgress(ScreenContext& context) : Screen("frmProgress", "Kestra B"), context_(context) {
  cmdStop.onClick = [this] { stop(); };
}

void frmProgress::load() {
  drawDamPicture(Picture1);
}

void frmProgress::begin(int steps) {
  running_ = true;
  stopping_ = false;
  begunNs_ = context_.ports.clock.steadyNs();
  Gauge.setLimits(0, steps);
  cmdStop.setEnabled(true);
  lblTold.setCaption("");
  step(0, "");
}

void frmProgress::step(int value, const std::string& what) {
  if (!running_ && value > Gauge.maximum()) Gauge.setLimits(0, value);
  Gauge.setValue(value);
  lblWhat.setCaption(what);
  context_.host.show(*this);
  refresh();
}

void frmProgress::refresh() {
  lblTime.setCaption(minutesAndSeconds(context_.ports.clock.steadyNs() - begunNs_));
  context_.ports.events.pump();
}

void frmProgress::finish() {
  rest();
  context_.host.unload(*this);
}

void frmProgress::rest() {
  running_ = false;
  stopping_ = false;
  cmdStop.setEnabled(false);
}

void frmProgress::attend() {
  if (running_) return;
  stopping_ = false;
  cmdStop.setEnabled(true);
}

bool frmProgress::queryUnload(CloseReason reason, bool bExiting) {
  if (bExiting || !running_ || reason == CloseReason::program) return true;
  stop();
  return false;
}

void frmProgress::stop() {
  stopping_ = true;
  cmdStop.setEnabled(false);
}

}  // namespace kestra
