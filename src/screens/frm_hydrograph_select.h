#pragma once

#include <string>
#include <vector>

#include "controls/choices.h"
#include "controls/simple_controls.h"
#include "screens/input_context.h"

namespace kestra {

// Asks which hydrograph of a file is meant; shown modally by the hydrograph screen. OK gives that screen the code of
// the chosen entry: that of its name below, or its index in the list, from 0.
class frmHydrographSelect : public Screen {
 public:
  struct NamedCode {
    const char* name;
    const char* code;
  };
  static const std::vector<NamedCode>& namedCodes();

  explicit frmHydrographSelect(InputContext& context);

  Label lblSelect{*this, "lblSelect", "Please select which hydrograph should be imported:"};
  ListBox List1{*this, "List1"};
  Button cmdOK{*this, "cmdOK", "&OK"};

 private:
  std::string code() const;
};

}  // namespace kestra
