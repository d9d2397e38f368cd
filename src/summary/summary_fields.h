#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace kestra {

enum class SummaryLevel { dam = 0, instance = 1 };
inline constexpr std::size_t kMostSummaryFields = 40;  // of one level

// The titles of the digest fields, by level, in the order of the digests.
struct FieldCatalogues {
  std::array<std::vector<std::string>, 2> fieldTitles;

  // Reads "Summary.idt" (dam) and "Summary.ids" (instances) of the application directory: titles in quotes or between
  // commas, at most 40 in a file. A file that is missing or cannot be read leaves its level without fields.
  void LoadFieldCatalogues(FileSystem& files, const std::string& applicationDirectory);

  // The title of a field, from 1. A field that the catalogue does not name goes by its number, "Field 41".
  std::string title(SummaryLevel level, int field) const;
};

// The fields that the user wants to see, by level: field numbers from 1, in display order.
struct SummarySelection {
  std::array<std::vector<int>, 2> selectedFields;

  const std::vector<int>& of(SummaryLevel level) const { return selectedFields[static_cast<std::size_t>(level)]; }
};

// The selection that a new project starts with.
SummarySelection defaultSummarySelection();

}  // namespace kestra
