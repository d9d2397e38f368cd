#pragma once

#include "automation/json.h"
#include "screens/aux_store.h"

// The stores of the auxiliary spillways as scripts see them.
namespace kestra {

Json describeAuxProfiles(const AuxStore& store);    // a spillway an entry; blank points and reaches at the end left out
Json describeAuxMaterials(const AuxStore& store);   // by spillway: "count" and the records 1 to count + 2
Json describeMaterialOrder(const AuxStore& store);  // by spillway and material number, entry 0 unused: the slot

}  // namespace kestra
