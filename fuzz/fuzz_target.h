#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

// What a fuzz target defines. The entry has the name and form that coverage-guided fuzzers look for; the driver of this
// folder (standalone_main.cpp) needs no such fuzzer and runs the same target in the test suite.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace kestra {

// Inputs from which the driver starts: small, and between them every form that the reader under test knows.
std::vector<std::string> fuzzSeeds();

// Ends the program with a message when a property does not hold, so that every kind of fuzzer takes it for a fault.
inline void fuzzRequire(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "property broken: %s\n", property);
  std::abort();
}

}  // namespace kestra
