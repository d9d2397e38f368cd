#include "automation/driver.h"

#include <functional>
#include <istream>
#include <map>
#include <ostream>
#include <utility>

#include "automation/control_verbs.h"
#include "automation/operations.h"
#include "automation/variables.h"
#include "base/runtime_fault.h"
#include "platform/files.h"

namespace kestra {
namespace {

constexpr int kDeepest = 100;  // levels of brackets in a request

// What to do with the control that a request names.
const std::map<std::string, std::function<Json(Control&, const Fields&)>>& controlVerbs() {
  using Verb = std::function<Json(Control&, const Fields&)>;
  const auto plain = [](void (*action)(Control&, const Fields&)) -> Verb {
    return [action](Control& control, const Fields& request) -> Json {
      action(control, request);
      return nullptr;
    };
  };
  static const std::map<std::string, Verb> kVerbs = {
      {"get", [](Control& c, const Fields&) { return describeControl(c); }},
      {"set", plain([](Control& c, const Fields& r) { setControl(c, r.any("value")); })},
      {"leave", plain([](Control& c, const Fields&) { c.userLeave(); })},
      {"click", plain([](Control& c, const Fields&) { clickControl(c); })},
      {"dblclick", plain([](Control& c, const Fields&) { doubleClickControl(c); })},
      {"cells", [](Control& c, const Fields& r) { return tableCells(c, r); }},
      {"setcells", plain(setTableCells)},
      {"cursor", plain(setTableCursor)},
      {"type", plain([](Control& c, const Fields& r) { typeKeys(c, r.any("keys")); })},
      {"mouse", plain(useMouse)},
      {"canvas", [](Control& c, const Fields&) { return canvasCalls(c); }},
  };
  return kVerbs;
}

// Reads up to a line end; false at the end of the input. What is beyond `longest` bytes is dropped.
bool readLine(std::istream& in, std::string& line, std::size_t longest) {
  line.clear();
  std::streambuf* buffer = in.rdbuf();
  int c = buffer->sbumpc();
  if (c == std::char_traits<char>::eof()) return false;
  while (c != std::char_traits<char>::eof() && c != '\n') {
    if (line.size() <= longest) line.push_back(static_cast<char>(c));
    c = buffer->sbumpc();
  }
  return true;
}

bool isBlank(std::string_view line) {
  return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

Json failed(const std::string& why) {
  return {{"ok", false}, {"error", why}};
}

Json namesOf(const std::vector<Screen*>& screens) {
  Json names = Json::array();
  for (const Screen* screen : screens) names.push_back(screen->name());
  return names;
}

Json controlsOf(const Screen& screen) {
  Json list = Json::array();
  for (const Control* control : screen.controls()) {
    list.push_back({{"name", control->name()}, {"kind", nameOf(control->kind())}});
  }
  return list;
}

}  // namespace

Driver::Driver(Application& application, Conversation& conversation)
    : application_(application), conversation_(conversation) {
  application_.host.setModalLoop(this);
}

Driver::~Driver() {
  application_.host.setModalLoop(nullptr);
}

void Driver::run(std::istream& in, std::ostream& out) {
  std::string line;
  while (!finished() && out && readLine(in, line, kLongestLine)) {
    if (line.size() <= kLongestLine && isBlank(line)) continue;
    out << answerTo(line) << '\n' << std::flush;
  }
}

std::string Driver::answerTo(std::string_view line) {
  if (line.size() > kLongestLine) return oneLine(failed("the request is longer than 64 MiB"));
  if (nestsDeeper(line, kDeepest)) return oneLine(failed("the request is nested too deeply"));
  Json request;
  try {
    request = Json::parse(line);
  } catch (const Json::parse_error& fault) {
    return oneLine(failed("malformed JSON at column " + std::to_string(fault.byte)));
  } catch (const Json::out_of_range&) {
    return oneLine(failed("malformed JSON: a number is out of range"));
  }
  return oneLine(answer(request));
}

Json Driver::answer(const Json& request) {
  Json answer = Json::object();
  if (request.is_object() && request.contains("id")) answer["id"] = request["id"];
  Turn turn;
  conversation_.begin(turn);
  try {
    if (!request.is_object()) throw RequestError("a request must be a JSON object");
    if (request.contains("answers")) {
      for (const Json& given : Fields(request).list("answers")) {
        checkAnswer(given, turn.answers.size() + 1);
        turn.answers.push_back(given);
      }
    }
    Json value = carryOut(request);
    application_.shell.autosave.keep();
    if (modals_ == 0) application_.shell.autosave.offer();
    answer["ok"] = true;
    answer["value"] = std::move(value);
  } catch (const std::exception& fault) {
    answer["ok"] = false;
    answer["error"] = fault.what();
  }
  conversation_.end();
  turn.report(answer);
  return answer;
}

Json Driver::carryOut(const Json& whole) {
  const Fields request(whole);
  const std::string& verb = request.text("do");
  if (controlVerbs().contains(verb) || verb == "image") return control(verb, request);
  if (verb == "state") return describeState(application_);
  if (verb == "variable") return readVariable(application_, request.text("name"));
  if (verb == "screens") return namesOf(application_.host.screens());
  if (verb == "controls") return controlsOf(screenOf(request));
  if (verb == "activate") {
    application_.host.show(screenOf(request));
    return nullptr;
  }
  if (verb == "close") {
    application_.host.closeByFrame(screenOf(request));
    return nullptr;
  }
  if (verb == "clipboard") return setClipboard(request);
  if (verb == "operations") return listOperations(application_);
  if (verb == "call") {
    const Json none = Json::array();
    return callOperation(application_, request.text("name"), request.has("args") ? request.any("args") : none);
  }
  if (verb == "quit") {
    quit_ = true;
    return nullptr;
  }
  throw RequestError("no verb named \"" + verb + "\"");
}

Json Driver::control(const std::string& verb, const Fields& request) {
  Control& named = controlOf(request);
  const bool reads = verb == "get" || verb == "cells" || verb == "canvas" || verb == "image";
  if (verb == "click") checkClickable(named);
  if (!reads || named.screen().loadsWhenRead()) application_.host.load(named.screen());
  return verb == "image" ? picture(named, request) : controlVerbs().at(verb)(named, request);
}

Json Driver::setClipboard(const Fields& request) {
  if (request.has("text")) application_.ports.clipboard.setText(request.text("text"));
  return application_.ports.clipboard.text();
}

Json Driver::picture(const Control& control, const Fields& request) {
  if (control.kind() != ControlKind::canvas) throw RequestError(control.name() + " is no canvas");
  const std::string& file = request.text("file");
  const PictureSize size = {request.integer("width", PictureSize().width),
                            request.integer("height", PictureSize().height)};
  PictureMaker* pictures = application_.shell.graphs.context.pictures;
  if (pictures == nullptr) throw RequestError("this program was built without the picture renderer");
  const auto form = pictureForm(file);
  if (!form) throw RequestError(file + ": the name of a picture ends in .png, .svg, .pdf or .bmp");
  const Result<std::string> made = pictures->make({&static_cast<const CanvasControl&>(control).log()}, *form, size);
  if (!made) throw RequestError(file + ": " + made.failure().reason);
  const Status written = writeWholeFile(application_.ports.files, file, made.value());
  if (!written) throw RequestError(written.failure().path + ": " + written.failure().reason);
  return nullptr;
}

Screen& Driver::screenOf(const Fields& request) {
  const std::string& name = request.text("screen");
  Screen* screen = application_.host.find(name);
  if (screen == nullptr) throw RequestError("no screen named \"" + name + "\"");
  return *screen;
}

Control& Driver::controlOf(const Fields& request) {
  Screen& screen = screenOf(request);
  const std::string& name = request.text("control");
  Control* control = screen.find(name);
  if (control == nullptr) throw RequestError(screen.name() + " has no control named \"" + name + "\"");
  return *control;
}

void Driver::run(Screen& screen) {
  const Json given = conversation_.take("modal");
  Json* modals = conversation_.turn() != nullptr ? &conversation_.turn()->modals : nullptr;
  if (given.is_null()) {
    if (modals != nullptr) modals->push_back(screen.name());
    return;
  }
  Json replies = Json::array();
  ++modals_;
  for (const Json& request : asList(given["modal"], "answer \"modal\"")) {
    replies.push_back(screen.visible() ? answer(request) : failed(screen.name() + " is no longer shown"));
  }
  --modals_;
  modals->push_back({{"screen", screen.name()}, {"replies", std::move(replies)}});
}

}  // namespace kestra
