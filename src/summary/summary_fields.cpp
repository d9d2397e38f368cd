#include "summary/summary_fields.h"

#include "base/quoted_list.h"
#include "platform/files.h"

namespace kestra {
namespace {

std::vector<std::string> titlesIn(FileSystem& files, const std::string& directory, const char* name) {
  std::vector<std::string> titles;
  const auto path = findIgnoringCase(files, directory, name);
  if (!path) return titles;
  const auto text = files.read(path.value(), kReadLimit);
  if (!text) return titles;
  QuotedListReader reader(text.value());
  while (titles.size() < kMostSummaryFields) {
    auto title = reader.next();
    if (!title) break;
    titles.push_back(*title);
  }
  return titles;
}

}  // namespace

void FieldCatalogues::LoadFieldCatalogues(FileSystem& files, const std::string& applicationDirectory) {
  fieldTitles[0] = titlesIn(files, applicationDirectory, "Summary.idt");
  fieldTitles[1] = titlesIn(files, applicationDirectory, "Summary.ids");
}

std::string FieldCatalogues::title(SummaryLevel level, int field) const {
  const std::vector<std::string>& titles = fieldTitles[static_cast<std::size_t>(level)];
  const auto index = static_cast<std::size_t>(field - 1);
  return index < titles.size() ? titles[index] : "Field " + std::to_string(field);
}

SummarySelection defaultSummarySelection() {
  return {{{{1, 9, 11, 12, 17, 18, 19, 36, 37, 38, 39, 40}, {1, 2, 3, 4, 5, 6}}}};
}

}  // namespace kestra
