#include "automation/conversation.h"

#include <algorithm>
#include <ostream>

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

}  // namespace

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
  if (!several) return std::vector<std::string>{asText(answer["file"], "answer \"file\"")};
  std::vector<std::string> files;
  for (const Json& file : asList(answer["files"], "answer \"files\"")) files.push_back(asText(file, "a file"));
  if (!dialog.several && files.size() > 1) files.resize(1);
  return files;
}

std::optional<std::string> Conversation::chooseDirectory(const std::string& title, const std::string& start) {
  const Json answer = ask(dialogOf("directory", title, start), "directory");
  if (answer.is_null()) return std::nullopt;
  return asText(answer["directory"], "answer \"directory\"");
}

std::optional<std::uint32_t> Conversation::chooseColor(std::uint32_t start) {
  const Json answer = ask(dialogOf("color", "", start), "color");
  if (answer.is_null()) return std::nullopt;
  return static_cast<std::uint32_t>(asInteger(answer["color"], "answer \"color\""));
}

std::optional<FontChoice> Conversation::chooseFont(const FontChoice& start) {
  const Json answer = ask(dialogOf("font", "", start.name), "font");
  if (answer.is_null()) return std::nullopt;
  FontChoice font = start;
  const Json& given = answer["font"];
  if (!given.is_object()) throw RequestError("answer \"font\" must be an object");
  if (given.contains("name")) font.name = asText(given["name"], "font name");
  if (given.contains("size")) font.size = asNumber(given["size"], "font size");
  if (given.contains("bold")) font.bold = asBoolean(given["bold"], "font bold");
  if (given.contains("italic")) font.italic = asBoolean(given["italic"], "font italic");
  return font;
}

std::optional<PrintChoice> Conversation::choosePrint(const PrintChoice& start) {
  const Json answer = ask(dialogOf("print", "", start.device), "print");
  if (answer.is_null() || !asBoolean(answer["print"], "answer \"print\"")) return std::nullopt;
  return start;
}

void Conversation::beep() {
  if (turn() != nullptr) ++turn()->beeps;
}

}  // namespace kestra
