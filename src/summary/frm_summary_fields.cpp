#include "summary/frm_summary_fields.h"

#include <algorithm>

#include "base/paths.h"
#include "controls/screen_host.h"
#include "platform/files.h"
#include "results/result_files.h"
#include "screens/file_choice.h"

namespace kestra {
namespace {

constexpr const char* kError = "Error Message";
constexpr const char* kFilter = "All Files (*.*)|*.*|IDE Files (*.IDE)|*.IDE";
constexpr const char* kLevels[] = {"Top-Level", "Second-Level"};

FileDialog dialog(FileDialog::Kind kind, const char* title, std::string defaultName) {
  return {kind, title, kFilter, 2, std::move(defaultName), false};
}

// The place of the entry that comes to the index of one that was taken out.
int stayingAt(int index, std::size_t count) {
  return std::min(index, static_cast<int>(count) - 1);
}

}  // namespace

frmSummaryFields::frmSummaryFields(ScreenContext& context, SummaryStore& store)
    : Screen("frmSummaryFields", "Summary Fields"), context_(context), store_(store) {
  for (int level = 0; level < 2; ++level) {
    lblAvailable(level).setCaption(std::string(kLevels[level]) + " Available");
    lblSelected(level).setCaption(std::string(kLevels[level]) + " Selected");
    for (ListBox* list : {&lstAvailable(level), &lstSelected(level)}) {
      list->onClick = [this, level] { takeUp(level); };
      list->onFocus = [this, level] { takeUp(level); };
    }
    lstAvailable(level).onDoubleClick = [this, level] { transfer(level); };
    cmdTransfer(level).onClick = [this, level] { transfer(level); };
    cmdDelete(level).onClick = [this, level] { remove(level); };
    cmdClear(level).onClick = [this, level] {
      selected(level).clear();
      showLevel(level);
    };
  }
  takeUp(0);
  optRow.standIn(frameOrder);
  optColumn.standIn(frameOrder);
  optRow.onClick = [this] { store_.setSummaryOrder(kByRow); };
  optColumn.onClick = [this] { store_.setSummaryOrder(kByColumn); };
  cmdOK.onClick = [this] { accept(); };
  cmdCancel.onClick = [this] { host().unload(*this); };
  mnuSummaryLoad.onClick = [this] { openSelection(); };
  mnuSummarySaveAs.onClick = [this] { saveSelection(); };
}

void frmSummaryFields::load() {
  accepted_ = false;
  orderBefore_ = store_.summaryOrder();
  (orderBefore_ == kByRow ? optRow : optColumn).setSelected(true);
  choice_ = store_.selection();
  takeUp(0);
  showChoice();
}

void frmSummaryFields::unload() {
  if (!accepted_) store_.setSummaryOrder(orderBefore_);
}

void frmSummaryFields::takeUp(int level) {
  alsoCalled(cmdTransfer(level), "cmdTransfer");
  alsoCalled(cmdDelete(level), "cmdDelete");
  alsoCalled(cmdClear(level), "cmdClear");
}

// The fields of the catalogue that are not selected, in its order.
std::vector<int> frmSummaryFields::available(int level) const {
  const auto index = static_cast<std::size_t>(level);
  const std::vector<int>& chosen = choice_.selectedFields[index];
  std::vector<int> fields;
  for (int field = 1; field <= static_cast<int>(store_.catalogues().fieldTitles[index].size()); ++field) {
    if (std::find(chosen.begin(), chosen.end(), field) == chosen.end()) fields.push_back(field);
  }
  return fields;
}

void frmSummaryFields::showLevel(int level, int selectedIndex, int availableIndex) {
  const auto show = [this, level](ListBox& list, const std::vector<int>& fields, int index) {
    std::vector<std::string> titles;
    for (const int field : fields) titles.push_back(store_.catalogues().title(static_cast<SummaryLevel>(level), field));
    list.setItems(std::move(titles));
    list.setIndex(index);
  };
  show(lstAvailable(level), available(level), availableIndex);
  show(lstSelected(level), selected(level), selectedIndex);
}

void frmSummaryFields::showChoice() {
  for (int level = 0; level < 2; ++level) showLevel(level);
}

// Behind the one that is marked in the selected list, at the end when none is. It is marked then, so that the next
// comes behind it.
void frmSummaryFields::transfer(int level) {
  const int from = lstAvailable(level).index();
  if (from < 0) return;
  const std::vector<int> fields = available(level);
  std::vector<int>& chosen = selected(level);
  const int marked = lstSelected(level).index();
  const int to = marked < 0 ? static_cast<int>(chosen.size()) : marked + 1;
  chosen.insert(chosen.begin() + to, fields[static_cast<std::size_t>(from)]);
  showLevel(level, to, stayingAt(from, fields.size() - 1));
}

void frmSummaryFields::remove(int level) {
  const int from = lstSelected(level).index();
  if (from < 0) return;
  std::vector<int>& chosen = selected(level);
  chosen.erase(chosen.begin() + from);
  showLevel(level, stayingAt(from, chosen.size()));
}

void frmSummaryFields::accept() {
  accepted_ = true;
  store_.setSummaryOrder(optRow.selected() ? kByRow : kByColumn);  // a table that was opened meanwhile has read the old
  store_.setSelection(choice_);
  tellUnsaved(context_.ports.boxes, store_.SaveSummaryStore(store_.projectFile()));
  if (onAccepted) onAccepted();
  host().unload(*this);
}

void frmSummaryFields::openSelection() {
  Ports& ports = context_.ports;
  const auto path =
      chooseNamedFile(ports, dialog(FileDialog::Kind::open, "Open File", ""), {"Open File", "No filename provided."});
  if (!path) return;
  const auto text = ports.files.read(*path, kReadLimit);
  const SummaryFile file = text ? readSummaryFile(text.value()) : SummaryFile{{}, {}, false};
  if (!file.understood) return ports.boxes.tell(kError, "Unable to load Summary File", BoxIcon::warning);
  choice_ = file.selection;
  showChoice();
}

void frmSummaryFields::saveSelection() {
  Ports& ports = context_.ports;
  const std::string suggestion = joinPath(context_.state.projectDir, "Summary.IDE");
  const auto path = chooseNamedFile(ports, dialog(FileDialog::Kind::save, "Save As...", suggestion),
                                    {"Save As...", "No filename provided."});
  if (!path) return;
  const std::string question = "The file " + *path + " already exists. Do you want to replace it?";
  if (exists(ports.files, presentPath(ports.files, *path)) && !ports.boxes.confirm("Save As...", question)) return;
  tellUnsaved(context_.ports.boxes, store_.writeFile(*path, choice_));
}

}  // namespace kestra
