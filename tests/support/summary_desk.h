#pragma once

#include <string>
#include <vector>

#include "summary/summary_store.h"
#include "support/input_desk.h"

namespace kestra {

// A store over files in memory, with a project and the titles of three fields of a dam and two of instances.
struct SummaryDesk : InputDesk {
  FieldCatalogues titles;
  SummaryStore store{ports, state, titles};

  SummaryDesk() {
    titles.fieldTitles = {{{"Title", "Crest", "Peak"}, {"Name", "Stress"}}};
    state.projectDir = "/p";
    files.putDirectory("/p");
  }

  void putSummary(const std::string& text) { files.put("/p/SUMMARY.IDE", text); }
  // The values of an entry, from 0, that are not empty: "1:a 26:b", by position.
  std::string valuesOf(std::size_t entry) const {
    std::string text;
    const EntryValues& values = store.entries().at(entry).values;
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (!values[i].empty()) text += (text.empty() ? "" : " ") + std::to_string(i + 1) + ":" + values[i];
    }
    return text;
  }
};

}  // namespace kestra
