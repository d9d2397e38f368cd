#pragma once

#include <string>

#include "screens/aux_store.h"
#include "screens/screen_context.h"

namespace kestra {

class Properties;
class Table;
class frmAuxRatingTable;
class frmAuxSpillwayProfile;
class frmAuxSpillways;
class frmDamSurface;
class frmDist;
class frmHeadcut;
class frmHydrographData;
class frmHydrographSelect;
class frmProjectInformation;
class frmPSConduit;
class frmPSRatingTable;
class frmPSType;
class frmStructureTable;

// The input window as the input screens need it: where Home leads, and the run at the end of the sequence.
class InputDesktop {
 public:
  virtual ~InputDesktop() = default;
  virtual Screen& inputWindow() = 0;
  virtual void mnuBuildFileFromOtherScreen_Click() = 0;
};

// The input screens by their names, so that each can read what another holds. Null while a screen is not there.
struct InputScreens {
  frmProjectInformation* projectInformation = nullptr;
  Properties* properties = nullptr;
  frmDamSurface* damSurface = nullptr;
  frmStructureTable* structureTable = nullptr;
  frmHydrographData* hydrographData = nullptr;
  frmHydrographSelect* hydrographSelect = nullptr;
  frmPSType* psType = nullptr;
  frmPSConduit* psConduit = nullptr;
  frmPSRatingTable* psRatingTable = nullptr;
  frmAuxSpillways* auxSpillways = nullptr;
  frmAuxRatingTable* auxRatingTable = nullptr;
  frmAuxSpillwayProfile* auxSpillwayProfile = nullptr;
  frmHeadcut* headcut = nullptr;
  frmDist* dist = nullptr;
};

// What every input screen is given.
struct InputContext {
  ScreenContext& base;
  InputDesktop& desktop;
  InputScreens screens;
  AuxStore aux{};  // what the auxiliary spillways' screens enter, and the generator reads
};

// Whether the structure table carries discharges of its own: a cell that is not blank in column 2, rows 1 to 50. Such a
// table takes the principal spillway screens out of the sequence.
bool hasStructureDischarge(const InputContext& context);
bool hasStructureDischarge(const Table& structureTable);

}  // namespace kestra
