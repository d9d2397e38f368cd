#pragma once

#include <gtest/gtest.h>

#include "platform/process_host.h"

// What every ProcessHost does. A Scene offers `host`, and program(kind): the path of a program that "succeeds", "fails"
// (exit code 3), "crashes" (by SIGSEGV), "lasts" (a minute) or is "missing".
namespace kestra {

// "exit 3", "SIGSEGV (11)", "stopped", "not started: No such file or directory".
inline std::string describe(const ProcessOutcome& outcome) {
  if (const auto* exited = std::get_if<Exited>(&outcome)) return "exit " + std::to_string(exited->code);
  if (const auto* signalled = std::get_if<Signalled>(&outcome)) {
    return signalled->name + " (" + std::to_string(signalled->number) + ")";
  }
  if (const auto* failed = std::get_if<StartFailed>(&outcome)) return "not started: " + failed->reason;
  return "stopped";
}

template <class Scene>
class ProcessHostContract : public testing::Test {
 protected:
  std::string outcomeOf(const char* kind, const std::function<bool()>& keepGoing) {
    return describe(scene.host.run({scene.program(kind), {}, "", ""}, keepGoing));
  }

  Scene scene;
};
TYPED_TEST_SUITE_P(ProcessHostContract);

TYPED_TEST_P(ProcessHostContract, tellsHowAProgramEnded) {
  const auto goOn = [] { return true; };
  EXPECT_EQ(this->outcomeOf("succeeds", {}), "exit 0");
  EXPECT_EQ(this->outcomeOf("succeeds", goOn), "exit 0");
  EXPECT_EQ(this->outcomeOf("fails", goOn), "exit 3");
  EXPECT_EQ(this->outcomeOf("crashes", goOn), "SIGSEGV (11)");
  EXPECT_EQ(this->outcomeOf("missing", goOn), "not started: No such file or directory");
}

TYPED_TEST_P(ProcessHostContract, stopsWhenTheCallerDoesNotWantToGoOn) {
  EXPECT_EQ(this->outcomeOf("lasts", [] { return false; }), "stopped");
}

REGISTER_TYPED_TEST_SUITE_P(ProcessHostContract, tellsHowAProgramEnded, stopsWhenTheCallerDoesNotWantToGoOn);

}  // namespace kestra
