#include "platform/scripted.h"

#include <gtest/gtest.h>

#include "support/contracts/process_host_contract.h"
#include "support/contracts/small_ports_contract.h"

namespace kestra {
namespace {

struct ScriptedScene {
  ScriptedScene() {
    host.effects["succeeds"] = [](const ProcessRequest&) { return Exited{0}; };
    host.effects["fails"] = [](const ProcessRequest&) { return Exited{3}; };
    host.effects["crashes"] = [](const ProcessRequest&) { return Signalled{11, "SIGSEGV"}; };
    host.effects["lasts"] = [](const ProcessRequest&) { return Exited{0}; };
  }
  std::string program(const std::string& kind) { return kind; }

  ScriptedProcessHost host;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Scripted, ProcessHostContract, ScriptedScene);

TEST(ScriptedProcessHost, remembersWhatItWasAskedToRun) {
  ScriptedProcessHost host;
  std::string seen;
  host.effects["/bin/solver"] = [&](const ProcessRequest& request) {
    seen = request.arguments.at(0);
    return Exited{0};
  };
  (void)host.run({"/bin/solver", {"dam.in"}, "/proj", "/proj/log"}, {});
  (void)host.run({"/bin/other", {}, "", ""}, {});
  EXPECT_EQ(seen, "dam.in");
  ASSERT_EQ(host.requests.size(), 2U);
  EXPECT_EQ(host.requests[0].directory, "/proj");
  EXPECT_EQ(host.requests[1].program, "/bin/other");
}

TEST(ScriptedMessageBoxes, answersFromItsListAndRefusesWhatIsNotOffered) {
  ScriptedMessageBoxes boxes;
  boxes.answers = {BoxButton::yes, BoxButton::ok};
  const MessageBox question = {"T", "Sure?", BoxIcon::question, {BoxButton::yes, BoxButton::no}};
  EXPECT_EQ(boxes.show(question), BoxButton::yes);
  EXPECT_EQ(boxes.show(question), BoxButton::no);
  EXPECT_EQ(boxes.show(question), BoxButton::no);
  EXPECT_TRUE(boxes.answers.empty());
  EXPECT_EQ(boxes.shown.size(), 3U);
  expectAnswersWithinTheButtons(boxes);
}

TEST(ScriptedDialogs, answersEachKindFromItsOwnList) {
  ScriptedDialogs dialogs;
  expectDialogsThatNobodyAnswersToBeCancelled(dialogs);
  dialogs.files = {std::vector<std::string>{"/a", "/b"}, std::nullopt};
  dialogs.directories = {"/d"};
  dialogs.colors = {255U};
  dialogs.fonts = {FontChoice{"Mono", 9, true, false}};
  dialogs.prints = {PrintChoice{2, 3, 1, "laser"}};
  EXPECT_EQ(dialogs.chooseFiles({}), (std::vector<std::string>{"/a", "/b"}));
  EXPECT_EQ(dialogs.chooseFiles({}), std::nullopt);
  EXPECT_EQ(dialogs.chooseDirectory("", ""), "/d");
  EXPECT_EQ(dialogs.chooseColor(0), 255U);
  EXPECT_EQ(dialogs.chooseFont({}).value().name, "Mono");
  EXPECT_EQ(dialogs.choosePrint({}).value().device, "laser");
  EXPECT_EQ(dialogs.shownFiles.front().title, "Open");
  expectDialogsThatNobodyAnswersToBeCancelled(dialogs);
}

TEST(MemoryClipboard, holdsTheTextThatWasSetLast) {
  MemoryClipboard clipboard;
  EXPECT_EQ(clipboard.text(), "");
  expectClipboard(clipboard);
}

TEST(ScriptedClock, turnsTimeIntoADateOfTheCalendar) {
  constexpr std::int64_t kSecond = 1000000000;
  const std::vector<std::pair<std::int64_t, std::vector<int>>> cases = {
      {0, {1970, 1, 1, 0, 0, 0}},
      {951782399 * kSecond + 999999999, {2000, 2, 28, 23, 59, 59}},
      {951782400 * kSecond, {2000, 2, 29, 0, 0, 0}},
      {1767225599 * kSecond, {2025, 12, 31, 23, 59, 59}},
      {-1, {1969, 12, 31, 23, 59, 59}}};
  ScriptedClock clock;
  for (const auto& [ns, wanted] : cases) {
    const CalendarTime time = clock.localTime(ns);
    EXPECT_EQ((std::vector<int>{time.year, time.month, time.day, time.hour, time.minute, time.second}), wanted);
  }
  clock.now = 5;
  EXPECT_EQ(clock.nowNs(), 5);
  EXPECT_EQ(clock.steadyNs(), 5);
  expectClock(clock);
}

TEST(ScriptedEntropy, givesTheSameRowInEveryRun) {
  ScriptedEntropy entropy;
  EXPECT_EQ(entropy.next(), 1015568748U);
  EXPECT_EQ(entropy.next(), 1586005467U);
  expectEntropy(entropy);
}

TEST(RecordingPorts, rememberWhatWasAskedOfThem) {
  RecordingBeeper beeper;
  beeper.beep();
  EXPECT_EQ(beeper.beeps, 1);
  RecordingEventPump events;
  events.pump();
  int seen = 0;
  events.onPump = [&] { seen = events.pumps; };
  events.pump();
  EXPECT_EQ(seen, 2);
  RecordingHelpViewer help;
  help.showTopic("html\\StructureTable.htm");
  EXPECT_EQ(help.topics, (std::vector<std::string>{"html\\StructureTable.htm"}));
}

}  // namespace
}  // namespace kestra
