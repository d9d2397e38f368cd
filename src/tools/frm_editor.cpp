#include "tools/frm_editor.h"

#include "results/result_files.h"

namespace kestra {
namespace {

constexpr int kSlot = static_cast<int>(WindowSlot::editor);
constexpr const char* kUntitled = "Text Editor: Untitled";

}  // namespace

frmEditor::frmEditor(ScreenContext& context) : Screen("frmEditor", kUntitled), context_(context) {
  constexpr int kWidth = 10320;
  constexpr int kHeight = 6600;
  setSize(kWidth, kHeight);
  for (Page& page : pages_) {
    page.text.setMultiLine(true);
    page.text.setLocked(true);
    page.text.onKeyPress = [this, files = page.files](const Key&) {
      context_.ports.boxes.tell("Edit", std::string("Warning! You cannot change the ") + files + " files",
                                BoxIcon::warning);
      return false;
    };
  }
  tbEditor.onClick = [this](int) { showPage(); };
  mnuExit.onClick = [this] { host().unload(*this); };
  for (Menu& entry : mnuWindowsArray) entry.setVisible(false);
  showPage();
}

void frmEditor::load() {
  context_.state.window(kSlot) = true;
  showPage();
}

void frmEditor::unload() {
  forgetFiles();
  context_.state.window(kSlot) = false;
}

void frmEditor::OpenFile(const std::string& fileName, int page) {
  if (page < 0 || page >= kPages) throw RuntimeFault("subscript out of range");
  const auto text = readResultFile(context_.ports.files, fileName);
  if (!text) return tellUnread(text.failure());
  host().load(*this);
  Page& shown = pages_[static_cast<std::size_t>(page)];
  shown.text.setText(text.value());
  shown.fileName = fileName;
  tbEditor.setIndex(page);
  showPage();
  host().show(*this);
}

void frmEditor::forgetFiles() {
  for (Page& page : pages_) {
    page.text.setText({});
    page.fileName.clear();
  }
  tbEditor.setIndex(0);
  showPage();
}

void frmEditor::tellUnread(const Failure& failure) {
  MessageBoxes& boxes = context_.ports.boxes;
  if (failure.kind == FailureKind::notFound) return boxes.tell("QUIL IDE", "No such File", BoxIcon::information);
  boxes.tell("Error Message", failure.path + ": " + failure.reason, BoxIcon::warning);
}

void frmEditor::showPage() {
  const auto selected = static_cast<std::size_t>(tbEditor.index());
  for (std::size_t i = 0; i < pages_.size(); ++i) pages_[i].text.setVisible(i == selected);
  const std::string& name = pages_[selected].fileName;
  setTitle(name.empty() ? kUntitled : "Text Editor: [ " + name + " ]");
}

}  // namespace kestra
