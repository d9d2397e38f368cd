#include <xlsxwriter.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "base/numbers.h"
#include "summary/table_formats.h"
#include "summary/valid_text.h"

namespace kestra {
namespace {

namespace fs = std::filesystem;

// A directory of its own for temporary files, removed with everything in it.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    constexpr int kTries = 10000;
    std::error_code failed;
    const fs::path place = fs::temp_directory_path(failed);
    for (int n = 0; n < kTries && !failed && path_.empty(); ++n) {
      const fs::path candidate = place / ("kestra-xlsx-" + std::to_string(n));
      if (fs::create_directory(candidate, failed)) path_ = candidate;
    }
  }
  ~TemporaryDirectory() {
    std::error_code ignored;
    if (!path_.empty()) fs::remove_all(path_, ignored);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  const fs::path& path() const { return path_; }  // empty: there is none

 private:
  fs::path path_;
};

void writeCell(lxw_worksheet* sheet, int row, int column, const std::string& text, lxw_format* format) {
  const auto r = static_cast<lxw_row_t>(row);
  const auto c = static_cast<lxw_col_t>(column);
  constexpr std::size_t kMostCharacters = 32767;  // of a cell
  const auto number = realNumber(text);
  if (number && format == nullptr) {
    worksheet_write_number(sheet, r, c, *number, format);
  } else if (!text.empty()) {
    worksheet_write_string(sheet, r, c, validText(charsFrom(text, 0, kMostCharacters)).c_str(), format);
  }
}

void fillSheet(lxw_workbook* book, const TextGrid& grid) {
  constexpr int kTextColumns = 3;  // name, type and input
  constexpr double kCharacters = 16;
  lxw_worksheet* sheet = workbook_add_worksheet(book, "Summary");
  lxw_format* heading = workbook_add_format(book);
  format_set_bold(heading);
  lxw_format* plain = workbook_add_format(book);
  for (int row = 0; row < grid.rows; ++row) {
    for (int column = 0; column < grid.columns; ++column) {
      lxw_format* const textual = column < kTextColumns ? plain : nullptr;
      writeCell(sheet, row, column, grid.at(row, column), row == 0 ? heading : textual);
    }
  }
  worksheet_set_column(sheet, 0, static_cast<lxw_col_t>(grid.columns - 1), kCharacters, nullptr);
  worksheet_freeze_panes(sheet, 1, 1);
}

}  // namespace

Result<std::string> xlsxTable(const SummaryTable& table) {
  const TemporaryDirectory directory;
  const auto refused = [](const char* reason) { return Failure{FailureKind::other, {}, reason}; };
  if (directory.path().empty()) return refused("There is no directory for temporary files");
  const std::string place = directory.path().string();
  const std::string path = (directory.path() / "table.xlsx").string();
  lxw_workbook_options options = {};
  options.tmpdir = const_cast<char*>(place.c_str());
  lxw_workbook* book = workbook_new_opt(path.c_str(), &options);
  if (book == nullptr) return refused("The workbook cannot be made");
  fillSheet(book, gridOfAll(table));
  const lxw_error error = workbook_close(book);
  if (error != LXW_NO_ERROR) return refused(lxw_strerror(error));
  std::ifstream file(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file || bytes.empty()) return refused("The workbook cannot be read back");
  return bytes;
}

}  // namespace kestra
