#pragma once

#include "automation/json.h"
#include "controls/control.h"
#include "graphics/canvas_log.h"

// What a script does to one control, and sees of it.
namespace kestra {

Json describeControl(const Control& control);          // kind, value, caption, visible, enabled, and more by kind
void setControl(Control& control, const Json& value);  // as the user would
void checkClickable(const Control& control);           // RequestError when hidden or disabled
void clickControl(Control& control);                   // error when hidden, disabled, or without anything to click
void doubleClickControl(Control& control);
void typeKeys(Control& control, const Json& keys);  // a text, {"key": NAME}, or a list of both
Json tableCells(const Control& control, const Fields& request);
void setTableCells(Control& control, const Fields& request);
void setTableCursor(Control& control, const Fields& request);
void useMouse(Control& control, const Fields& request);
Json canvasCalls(const Control& control);
Json describeCalls(const CanvasLog& log);  // an array a call: its name and arguments

}  // namespace kestra
