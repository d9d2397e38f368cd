#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "platform/dialogs.h"
#include "platform/settings_store.h"
#include "platform/small_ports.h"

namespace kestra {

// The user's colours, line styles and line widths, with which all graphs draw.
struct LineSettings {
  std::array<std::uint32_t, 110> ColorList{};    // 0 to 109; red in the low byte
  std::array<int, 14> ComboList{};               // 1 to 13: 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot
  std::array<int, 14> WidthList{};               // 1 to 13: 1 to 4
  std::array<std::uint32_t, 16> customColors{};  // of the colour dialog, kept equal to ColorList(0 to 15)

  // Fill the lists with their defaults, then with what the settings hold under "ColorList", "ComboList" and
  // "WidthList", the index being the key. Colours 26 to 109 default to random ones, new in every run. A setting that is
  // not a number of its range counts as not set.
  void InitColors(SettingsStore& settings, EntropySource& entropy);
  void InitLines(SettingsStore& settings);

  // Change one item and keep it in the settings at once; on failure it holds for this run. An index outside its list
  // changes nothing.
  Status setColor(SettingsStore& settings, int index, std::uint32_t color);
  Status setStyle(SettingsStore& settings, int index, int style);
  Status setWidth(SettingsStore& settings, int index, int width);

  // The colour dialog with all custom colours: when it is confirmed they become the colours 0 to 15.
  bool PickAllColors(Dialogs& dialogs);
};

// The colour dialog, `start` being chosen in it at first; nothing when it is cancelled.
std::optional<std::uint32_t> PickColor(Dialogs& dialogs, std::uint32_t start);

}  // namespace kestra
