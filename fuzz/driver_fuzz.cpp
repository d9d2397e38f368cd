// Any bytes as request lines of a script: each line that is not blank gets exactly one line, which is a JSON object
// that says whether it could be done, and the same lines are answered alike on a fresh application.

#include <sstream>

#include "automation/driver.h"
#include "fuzz_target.h"
#include "support/scripted_desk.h"

namespace {

using namespace kestra;

// An application on files in memory and answers from the requests alone.
struct FuzzDesk : ScriptedDesk {
  FuzzDesk() {
    memory.put("/home/dam/owner", "first\r\nTORVE\r\n");
    app.shell.startUp("");
  }

  std::ostringstream outside;
  Conversation conversation{outside};
  Application app{
      {conversation, conversation, settings, clipboard, processes, files, events, conversation, entropy, clock, help},
      "/app"};
  Driver driver{app, conversation};
};

struct Run {
  std::string answers;
  bool finished = false;  // by a request: the lines behind it go unanswered
  bool operator==(const Run&) const = default;
};

Run carryOut(const std::string& requests) {
  FuzzDesk desk;
  std::istringstream in(requests);
  std::ostringstream out;
  desk.driver.run(in, out);
  return {out.str(), desk.driver.finished()};
}

std::size_t requestLines(std::string_view text) {
  std::size_t count = 0;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    if (text.substr(0, end).find_first_not_of(" \t\r") != std::string_view::npos) ++count;
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  }
  return count;
}

void requireAnswer(const std::string& line) {
  const Json answer = Json::parse(line, nullptr, false);
  fuzzRequire(answer.is_object(), "an answer is a JSON object");
  fuzzRequire(answer.contains("ok") && answer["ok"].is_boolean(), "an answer says whether it could be done");
  const bool told = answer["ok"].get<bool>() ? answer.contains("value") : answer.contains("error");
  fuzzRequire(told, "an answer has a value or an error");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string requests(reinterpret_cast<const char*>(data), size);
  const Run run = carryOut(requests);
  fuzzRequire(run.answers.empty() || run.answers.back() == '\n', "every answer is ended");
  std::istringstream lines(run.answers);
  std::string line;
  std::size_t count = 0;
  for (; std::getline(lines, line); ++count) requireAnswer(line);
  const std::size_t asked = requestLines(requests);
  fuzzRequire(count == asked || (count < asked && run.finished), "every request has one answer");
  fuzzRequire(carryOut(requests) == run, "the same requests have the same answers");
  return 0;
}

std::vector<std::string> kestra::fuzzSeeds() {
  return {
      "{\"do\":\"state\"}\n{\"do\":\"screens\"}\n\n{\"do\":\"operations\",\"id\":[1,{\"a\":null}]}\n",
      "{\"do\":\"click\",\"screen\":\"frmTopScreen\",\"control\":\"mnuNewProject\"}\r\n"
      "{\"do\":\"set\",\"screen\":\"frmNewProject\",\"control\":\"dirList\",\"value\":\"/home\"}\r\n"
      "{\"do\":\"type\",\"screen\":\"frmNewProject\",\"control\":\"txtEnterName\",\"keys\":[\"a\\b\",{\"key\":\"End\"}]"
      "}"
      "\r\n{\"do\":\"click\",\"screen\":\"frmNewProject\",\"control\":\"cmdOK\"}\r\n{\"do\":\"state\"}\r\n",
      "{\"do\":\"call\",\"name\":\"frmTopScreen.mnuDeleteProject_Click\"}\n"
      "{\"do\":\"set\",\"screen\":\"frmDeleteProject\",\"control\":\"dirList\",\"value\":\"/home/dam\"}\n"
      "{\"do\":\"click\",\"screen\":\"frmDeleteProject\",\"control\":\"cmdOK\",\"answers\":[\"Yes\"]}\n",
      "{\"do\":\"call\",\"name\":\"UpdateRecentProjects\",\"args\":[\"/home/dam\"]}\n"
      "{\"do\":\"click\",\"screen\":\"frmTopScreen\",\"control\":\"mnuRecentProject(1)\"}\n"
      "{\"do\":\"get\",\"screen\":\"frmKestra\",\"control\":\"mnuNew\"}\n"
      "{\"do\":\"close\",\"screen\":\"frmTopScreen\",\"answers\":[{\"cancel\":true},{\"modal\":[{\"do\":\"quit\"}]}]}"
      "\n",
      "{\"do\":\"call\",\"name\":\"PadField\",\"args\":[\"\xc3\xa4\",-3]}\n"
      "{\"do\":\"call\",\"name\":\"PopLine\",\"args\":[\"\\n\\ud83d\\ude00\"]}\n"
      "{\"do\":\"call\",\"name\":\"ComposeRecord\",\"args\":[\"HYD V\",[\"1\",\"2\"]]}\n"
      "{\"do\":\"call\",\"name\":\"ReadRecords\",\"args\":[\"/home/dam/owner\"]}\n",
      "{\"do\":\"variable\",\"name\":\"ColorList\"}\n{\"do\":\"variable\",\"name\":\"frmTopScreen.Caption\"}\n"
      "{\"do\":\"clipboard\",\"text\":\"a\\u0000b\"}\n{\"do\":\"activate\",\"screen\":\"frmAbout\"}\n"
      "{\"do\":\"cells\",\"screen\":\"frmAbout\",\"control\":\"txtText\",\"row\":1e9}\n{\"do\":\"quit\"}\n[[[[\n",
  };
}
