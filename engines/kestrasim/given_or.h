#pragma once

#include <string>

#include "kestrasim/dam_model.h"
#include "kestrasim/run_messages.h"

namespace kestra {

// A number that may be missing: the one given, else the fallback, which is told.
double givenOr(const Number& given, double fallback, const std::string& name, const Place& place,
               RunMessages& messages);

// What counts whole, without its fraction, which is told.
int wholeOf(double given, const std::string& name, const Place& place, RunMessages& messages);

// "12.5", of at most ten significant digits.
std::string shown(double value);

}  // namespace kestra
