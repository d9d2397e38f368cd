#include "platform/scripted.h"

#include <algorithm>
#include <chrono>

#include "base/text.h"

namespace kestra {
namespace {

template <class T>
std::optional<T> takeFirst(std::deque<std::optional<T>>& answers) {
  std::optional<T> answer;
  if (answers.empty()) return answer;
  answer.swap(answers.front());
  answers.pop_front();
  return answer;
}

}  // namespace

BoxButton ScriptedMessageBoxes::show(const MessageBox& box) {
  shown.push_back(box);
  if (answers.empty()) return refusal(box);
  const BoxButton answer = answers.front();
  answers.pop_front();
  const bool offered = std::find(box.buttons.begin(), box.buttons.end(), answer) != box.buttons.end();
  return offered ? answer : refusal(box);
}

std::optional<std::vector<std::string>> ScriptedDialogs::chooseFiles(const FileDialog& dialog) {
  shownFiles.push_back(dialog);
  return takeFirst(files);
}

std::optional<std::string> ScriptedDialogs::chooseDirectory(const std::string&, const std::string&) {
  return takeFirst(directories);
}

std::optional<std::uint32_t> ScriptedDialogs::chooseColor(std::uint32_t) {
  return takeFirst(colors);
}

std::optional<FontChoice> ScriptedDialogs::chooseFont(const FontChoice&) {
  return takeFirst(fonts);
}

std::optional<PrintChoice> ScriptedDialogs::choosePrint(const PrintChoice&) {
  return takeFirst(prints);
}

std::string MemorySettings::get(const std::string& section, const std::string& key, const std::string& otherwise) {
  const auto found = values_.find({toUpper(section), toUpper(key)});
  return found == values_.end() ? otherwise : found->second;
}

Status MemorySettings::set(const std::string& section, const Entries& entries) {
  for (const auto& [key, value] : entries) values_[{toUpper(section), toUpper(key)}] = value;
  return Done();
}

CalendarTime ScriptedClock::localTime(std::int64_t ns) {
  using namespace std::chrono;
  const sys_time<nanoseconds> time{nanoseconds(ns)};
  const auto day = floor<days>(time);
  const year_month_day date(day);
  const hh_mm_ss clock(floor<seconds>(time - day));
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(clock.hours().count()),
          static_cast<int>(clock.minutes().count()),
          static_cast<int>(clock.seconds().count())};
}

ProcessOutcome ScriptedProcessHost::run(const ProcessRequest& request, const std::function<bool()>& keepGoing) {
  requests.push_back(request);
  const auto effect = effects.find(request.program);
  if (effect == effects.end()) return StartFailed{"No such file or directory"};
  if (keepGoing && !keepGoing()) return Stopped();
  return effect->second(request);
}

}  // namespace kestra
