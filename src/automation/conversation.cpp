#include "automation/conversation.h"

#include <array>
#include <ostream>
#include <utility>

namespace kestra {
namespace {

// The button that an answer names, if the box has it; a cancelled box is refused.
std::optional<BoxButton> chosen(const MessageBox& box, const Json& answer) {
  if (answer.is_object() && answer.contains("cancel")) return refusal(box);
  if (!answer.is_string()) return std::nullopt;
  for (const BoxButton button : box.buttons) {
    if (answer.get_ref<const std::string&>() == captionOf(button)) return button;
  }
  return std::nullopt;
}

Json describe(const MessageBox& box, BoxButton answer) {
  Json buttons = Json::array();
  for (const BoxButton button : box.buttons) buttons.push_back(captionOf(button));
  return {{"title", box.title},
          {"text", box.text},
          {"icon", nameOf(box.icon)},
          {"buttons", buttons},
          {"answer", captionOf(answer)}};
}

Json dialogOf(const char* kind, const std::string& title, const Json& start) {
  return {{"kind", kind}, {"title", title}, {"filter", ""}, {"filterIndex", 0}, {"default", start}};
}

void checkFont(const Json& font, const std::string& what) {
  if (!font.is_object()) throw RequestError(what + " must be an object");
  if (font.contains("name")) asText(font["name"], what + ": \"name\"");
  if (font.contains("size")) asNumber(font["size"], what + ": \"size\"");
  if (font.contains("bold")) asBoolean(font["bold"], what + ": \"bold\"");
  if (font.contains("italic")) asBoolean(font["italic"], what + ": \"italic\"");
}

void checkFiles(const Json& files, const std::string& what) {
  for (const Json& file : asList(files, what)) asText(file, "an entry of " + what);
}

void checkColor(const Json& color, const std::string& what) {
  constexpr int kWhite = 0xFFFFFF;
  const int number = asInteger(color, what);
  if (number < 0 || number > kWhite) throw RequestError(what + " must be from 0 to 16777215");
}

void checkCancel(const Json& cancel, const std::string& what) {
  if (!asBoolean(cancel, what)) throw RequestError(what + " must be true");
}

using AnswerCheck = void (*)(const Json&, const std::string&);
constexpr std::array<std::pair<const char*, AnswerCheck>, 8> kAnswerForms = {{
    {"file", [](const Json& value, const std::string& what) { asText(value, what); }},
    {"files", checkFiles},
    {"directory", [](const Json& value, const std::string& what) { asText(value, what); }},
    {"color", checkColor},
    {"font", checkFont},
    {"print", [](const Json& value, const std::string& what) { asBoolean(value, what); }},
    {"cancel", checkCancel},
    {"modal", [](const Json& value, const std::string& what) { asList(value, what); }},
}};

}  // namespace

void checkAnswer(const Json& answer, std::size_t number) {
  const std::string what = "answer " + std::to_string(number);
  if (answer.is_string()) return;
  for (const auto& [name, check] : kAnswerForms) {
    if (answer.is_object() && answer.contains(name)) return check(answer[name], what + " \"" + name + "\"");
  }
  throw RequestError(what + " is neither a button nor the answer of a dialog or screen");
}

void Turn::report(Json& answer) const {
  if (!boxes.empty()) answer["boxes"] = boxes;
  if (!dialogs.empty()) answer["dialogs"] = dialogs;
  if (!modals.empty()) answer["modals"] = modals;
  if (beeps > 0) answer["beeps"] = beeps;
  if (unanswered > 0) answer["unanswered"] = unanswered;
}

BoxButton Conversation::show(const MessageBox& box) {
  if (turn() == nullptr) {
    outside_ << box.title << ": " << box.text << '\n';
    return refusal(box);
  }
  BoxButton answer = box.buttons.front();
  if (box.buttons.size() > 1) {
    std::optional<BoxButton> given;
    if (!turn()->answers.empty()) {
      given = chosen(box, turn()->answers.front());
      turn()->answers.pop_front();
    }
    if (!given) ++turn()->unanswered;
    answer = given.value_or(refusal(box));
  }
  turn()->boxes.push_back(describe(box, answer));
  return answer;
}

Json Conversation::take(const char* name) {
  if (turn() == nullptr) return nullptr;
  if (turn()->answers.empty()) {
    ++turn()->unanswered;
    return nullptr;
  }
  Json answer = std::move(turn()->answers.front());
  turn()->answers.pop_front();
  if (answer.is_object() && answer.contains(name)) return answer;
  if (!answer.is_object() || !answer.contains("cancel")) ++turn()->unanswered;
  return nullptr;
}

// Takes the answer to a dialog and writes both down; null when the dialog is cancelled.
Json Conversation::ask(Json dialog, const char* name) {
  if (turn() == nullptr) {
    outside_ << "cancelled: " << dialog["kind"].get<std::string>() << " dialog " << dialog["title"].get<std::string>()
             << '\n';
    return nullptr;
  }
  Json answer = take(name);
  dialog["answer"] = answer.is_null() ? Json{{"cancel", true}} : answer;
  turn()->dialogs.push_back(std::move(dialog));
  return answer;
}

std::optional<std::vector<std::string>> Conversation::chooseFiles(const FileDialog& dialog) {
  Json shown = dialogOf(dialog.kind == FileDialog::Kind::open ? "open" : "save", dialog.title, dialog.defaultName);
  shown["filter"] = dialog.filter;
  shown["filterIndex"] = dialog.filterIndex;
  const bool several = turn() != nullptr && !turn()->answers.empty() && turn()->answers.front().contains("files");
  const Json answer = ask(std::move(shown), several ? "files" : "file");
  if (answer.is_null()) return std::nullopt;
  if (!several) return std::vector<std::string>{answer["file"].get<std::string>()};
  auto files = answer["files"].get<std::vector<std::string>>();
  if (files.empty() || !dialog.several) files.resize(1);  // no name at all is an empty name
  return files;
}

std::optional<std::string> Conversation::chooseDirectory(const std::string& title, const std::string& start) {
  const Json answer = ask(dialogOf("directory", title, start), "directory");
  if (answer.is_null()) return std::nullopt;
  return answer["directory"].get<std::string>();
}

std::optional<std::uint32_t> Conversation::chooseColor(std::uint32_t start) {
  const Json answer = ask(dialogOf("color", "", start), "color");
  if (answer.is_null()) return std::nullopt;
  return answer["color"].get<std::uint32_t>();
}

std::optional<FontChoice> Conversation::chooseFont(const FontChoice& start) {
  const Json answer = ask(dialogOf("font", "", start.name), "font");
  if (answer.is_null()) return std::nullopt;
  const Json& given = answer["font"];
  return FontChoice{given.value("name", start.name), given.value("size", start.size), given.value("bold", start.bold),
                    given.value("italic", start.italic)};
}

std::optional<PrintChoice> Conversation::choosePrint(const PrintChoice& start) {
  const Json answer = ask(dialogOf("print", "", start.device), "print");
  if (answer.is_null() || !answer["print"].get<bool>()) return std::nullopt;
  return start;
}

void Conversation::beep() {
  if (turn() != nullptr) ++turn()->beeps;
}

}  // namespace kestra
