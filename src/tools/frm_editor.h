#pragma once

#include <array>
#include <string>

#include "controls/control_array.h"
#include "controls/ranges.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "screens/screen_context.h"

namespace kestra {

// The text files of runs, a page for each kind of them. Nobody writes in them: a key in a page is refused with a
// warning.
class frmEditor : public Screen {
 public:
  explicit frmEditor(ScreenContext& context);

  static constexpr int kPages = 6;
  static constexpr int kSpillwayOutput = 2;  // page of the spillway program's output
  static constexpr int kDamOutput = 3;       // page of the dam program's

  Tabs tbEditor{*this, "tbEditor", {".lsp", ".lhi", "Spillway .out", "Kestra .OUT", ".HCT", ".BRE"}};
  TextBox txtLSPEditor{*this, "txtLSPEditor"};
  TextBox txtLHIEditor{*this, "txtLHIEditor"};
  TextBox txtOutEditor{*this, "txtOutEditor"};
  TextBox txtKestraEditor{*this, "txtKestraEditor"};
  TextBox txtHCTEditor{*this, "txtHCTEditor"};
  TextBox txtBREEditor{*this, "txtBREEditor"};
  Menu mnuExit{*this, "mnuExit", "E&xit"};
  ControlArray<Menu> mnuWindowsArray{*this, "mnuWindowsArray", kFirstSlot, kLastSlot};

  // Shows a file on a page, counted from 0, and brings the window to the front. A file that is not there, or cannot be
  // read, is told of in a box and changes nothing. A fault for a page that there is not.
  void OpenFile(const std::string& fileName, int page);
  void forgetFiles();  // all pages are empty, the first one is on show

 protected:
  void load() override;
  void unload() override;

 private:
  struct Page {
    TextBox& text;
    const char* files;  // what they are called in the warning
    std::string fileName;
  };
  void tellUnread(const Failure& failure);
  void showPage();

  ScreenContext& context_;
  std::array<Page, kPages> pages_{{{txtLSPEditor, "QUIL .lsp", {}},
                                   {txtLHIEditor, "QUIL .lhi", {}},
                                   {txtOutEditor, "QUIL .out", {}},
                                   {txtKestraEditor, "Kestra .out", {}},
                                   {txtHCTEditor, "Kestra .HCT", {}},
                                   {txtBREEditor, "Kestra .BRE", {}}}};
};

}  // namespace kestra
