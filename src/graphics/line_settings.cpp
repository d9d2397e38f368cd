#include "graphics/line_settings.h"

#include <algorithm>
#include <string>

#include "base/numbers.h"

namespace kestra {
namespace {

constexpr std::uint32_t rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red + (green << 8U) + (blue << 16U);
}

constexpr std::array<std::uint32_t, 26> kDefaultColors = {rgb(238, 213, 143),
                                                          0,
                                                          255,
                                                          0,
                                                          16711680,
                                                          255,
                                                          16711680,
                                                          0,
                                                          rgb(105, 89, 205),
                                                          rgb(0, 206, 209),
                                                          rgb(255, 255, 0),
                                                          rgb(255, 128, 0),
                                                          rgb(160, 82, 45),
                                                          rgb(82, 160, 45),
                                                          rgb(205, 133, 63),
                                                          rgb(176, 48, 96),
                                                          rgb(188, 143, 143),
                                                          rgb(205, 92, 92),
                                                          rgb(160, 82, 45),
                                                          rgb(205, 133, 63),
                                                          0,
                                                          rgb(186, 85, 211),
                                                          rgb(153, 50, 204),
                                                          rgb(216, 191, 216),
                                                          rgb(139, 121, 94),
                                                          rgb(205, 201, 165)};

// A random colour: 256 times a random fraction, whole, for red, green and blue.
std::uint32_t randomColor(EntropySource& entropy) {
  const std::uint32_t red = entropy.next() >> 24U;
  const std::uint32_t green = entropy.next() >> 24U;
  return rgb(red, green, entropy.next() >> 24U);
}

long long storedNumber(SettingsStore& settings, const std::string& section, std::size_t index, long long otherwise,
                       long long lowest, long long highest) {
  const auto stored = wholeNumber(settings.get(section, std::to_string(index), std::to_string(otherwise)));
  return stored && *stored >= lowest && *stored <= highest ? *stored : otherwise;
}

// Sets an item of a list that is kept from `first` on.
template <class List, class Item>
Status setItem(SettingsStore& settings, const std::string& section, List& list, int first, int index, Item item) {
  if (index < first || index >= static_cast<int>(list.size())) return Done();
  list[static_cast<std::size_t>(index)] = item;
  return settings.set(section, {{std::to_string(index), std::to_string(item)}});
}

}  // namespace

void LineSettings::InitColors(SettingsStore& settings, EntropySource& entropy) {
  constexpr long long kWhite = 0xFFFFFF;
  for (std::size_t i = 0; i < ColorList.size(); ++i) {
    const std::uint32_t otherwise = i < kDefaultColors.size() ? kDefaultColors[i] : randomColor(entropy);
    ColorList[i] = static_cast<std::uint32_t>(storedNumber(settings, "ColorList", i, otherwise, 0, kWhite));
  }
  std::copy_n(ColorList.begin(), customColors.size(), customColors.begin());
}

void LineSettings::InitLines(SettingsStore& settings) {
  for (std::size_t i = 1; i < ComboList.size(); ++i) {
    const bool thin = i == 7 || i >= 11;
    ComboList[i] = static_cast<int>(storedNumber(settings, "ComboList", i, 0, 0, 4));
    WidthList[i] = static_cast<int>(storedNumber(settings, "WidthList", i, thin ? 1 : 2, 1, 4));
  }
}

Status LineSettings::setColor(SettingsStore& settings, int index, std::uint32_t color) {
  Status kept = setItem(settings, "ColorList", ColorList, 0, index, color);
  std::copy_n(ColorList.begin(), customColors.size(), customColors.begin());
  return kept;
}

Status LineSettings::setStyle(SettingsStore& settings, int index, int style) {
  return setItem(settings, "ComboList", ComboList, 1, index, style);
}

Status LineSettings::setWidth(SettingsStore& settings, int index, int width) {
  return setItem(settings, "WidthList", WidthList, 1, index, width);
}

bool LineSettings::PickAllColors(Dialogs& dialogs) {
  if (!dialogs.chooseCustomColors(customColors)) return false;
  std::copy(customColors.begin(), customColors.end(), ColorList.begin());
  return true;
}

std::optional<std::uint32_t> PickColor(Dialogs& dialogs, std::uint32_t start) {
  return dialogs.chooseColor(start);
}

}  // namespace kestra
