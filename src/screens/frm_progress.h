#pragma once

#include <cstdint>
#include <string>

#include "controls/canvas_control.h"
#include "controls/ranges.h"
#include "controls/simple_controls.h"
#include "screens/screen_context.h"

namespace kestra {

// How far a long command is: what runs now, a gauge from 0 to the number of files or steps, the time it has taken, and
// a button to stop it. The command sets all of it; between its steps waiting events are handled.
class frmProgress : public Screen {
 public:
  explicit frmProgress(ScreenContext& context);

  CanvasControl Picture1{*this, "Picture1"};
  Label lblWhat{*this, "lblWhat"};
  kestra::Gauge Gauge{*this, "Gauge", 0, 1};
  Label lblTold{*this, "lblTold"};  // what went wrong last; stays while the command goes on
  Label lblTime{*this, "lblTime"};  // "1:05", minutes and seconds
  Button cmdStop{*this, "cmdStop", "&Stop"};

  void begin(int steps);                            // comes to the front with an empty gauge
  void step(int value, const std::string& what);    // `value` steps are done, `what` runs now
  void refresh();                                   // the time, and the events that wait
  void finish();                                    // the command is over
  void rest();                                      // it has ended before its last step: stays on show to be read
  void attend();                                    // a program starts; a stop that no command was asked is forgotten
  bool stopRequested() const { return stopping_; }  // since it began; not after its end

 protected:
  void load() override;
  bool queryUnload(CloseReason reason, bool bExiting) override;  // closing by the frame asks a command to stop

 private:
  void stop();

  ScreenContext& context_;
  std::int64_t begunNs_ = 0;
  bool running_ = false;
  bool stopping_ = false;
};

}  // namespace kestra
