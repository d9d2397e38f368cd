#include "platform/printer.h"

#include <gtest/gtest.h>

#include "platform/memory_file_system.h"
#include "platform/scripted.h"

namespace kestra {
namespace {

struct ASpooledDocument : testing::Test {
  MemoryFileSystem files;
  ScriptedProcessHost processes;
  SpoolPrinter printer{files, processes, "/tmp"};
  std::string seen;

  ASpooledDocument() {
    files.putDirectory("/tmp");
    answer(Exited{0});
  }
  void answer(ProcessOutcome outcome) {
    processes.effects["/usr/bin/lp"] = [this, outcome](const ProcessRequest& request) {
      seen = files.content(request.arguments.back()).value_or("nothing");
      return outcome;
    };
  }
};

TEST_F(ASpooledDocument, isHandedToTheSpoolerAndRemoved) {
  files.put("/tmp/kestra-print-0.pdf", "of another program");
  EXPECT_TRUE(printer.print("pdf", {2, 3, 4, "laser"}));
  EXPECT_EQ(seen, "pdf");
  EXPECT_EQ(processes.requests[0].arguments,
            (std::vector<std::string>{"-n", "4", "-d", "laser", "-P", "2-3", "-o", "fit-to-page", "--",
                                      "/tmp/kestra-print-1.pdf"}));
  EXPECT_EQ(files.content("/tmp/kestra-print-1.pdf"), std::nullopt);
  EXPECT_EQ(files.content("/tmp/kestra-print-0.pdf"), "of another program");
}

TEST_F(ASpooledDocument, goesToTheUsualPrinterWhole) {
  EXPECT_TRUE(printer.print("pdf", {}));
  EXPECT_EQ(processes.requests[0].arguments,
            (std::vector<std::string>{"-n", "1", "-o", "fit-to-page", "--", "/tmp/kestra-print-0.pdf"}));
}

TEST_F(ASpooledDocument, tellsWhyItWasNotPrinted) {
  const std::pair<ProcessOutcome, const char*> cases[] = {
      {Exited{1}, "ended with 1"}, {StartFailed{"No such file"}, "No such file"}, {Stopped{}, "was stopped"}};
  for (const auto& [outcome, reason] : cases) {
    answer(outcome);
    const Status printed = printer.print("pdf", {});
    ASSERT_FALSE(printed);
    EXPECT_EQ(printed.failure().reason, reason);
    EXPECT_EQ(files.content("/tmp/kestra-print-0.pdf"), std::nullopt);
  }
  files.setMode("/tmp", true, false);
  EXPECT_TRUE(printer.print("pdf", {}).failedAs(FailureKind::denied));
}

}  // namespace
}  // namespace kestra
