#include "shell/recent_projects.h"

#include "base/numbers.h"

namespace kestra {
namespace {

constexpr const char* kSection = "ProjectHistory";

std::string prefixOf(int number) {
  return "&" + std::to_string(number) + " ";
}

std::string keyOf(long long number) {
  return std::to_string(number) + "Project";
}

}  // namespace

std::vector<std::string> RecentProjects::paths() const {
  std::vector<std::string> paths;
  for (int k = 1; k <= kMost && entries_(k).ownVisible(); ++k) {
    paths.push_back(entries_(k).caption().substr(prefixOf(k).size()));
  }
  return paths;
}

void RecentProjects::update(const std::string& path) {
  if (path.empty()) return;
  auto list = paths();
  std::erase(list, path);
  list.insert(list.begin(), path);
  show(list);
}

void RecentProjects::remove(const std::string& path) {
  auto list = paths();
  std::erase(list, path);
  show(list);
}

void RecentProjects::load(SettingsStore& settings) {
  const auto count = wholeNumber(settings.get(kSection, "n", "0"));
  if (!count || *count < 1 || *count > kMost) return;
  for (long long k = *count; k >= 1; --k) update(settings.get(kSection, keyOf(k), ""));
}

Status RecentProjects::save(SettingsStore& settings) const {
  const auto list = paths();
  SettingsStore::Entries entries = {{"n", std::to_string(list.size())}};
  for (std::size_t i = 0; i < list.size(); ++i) entries.emplace_back(keyOf(static_cast<long long>(i) + 1), list[i]);
  return settings.set(kSection, entries);
}

void RecentProjects::show(const std::vector<std::string>& paths) {
  for (int k = 1; k <= kMost; ++k) {
    const bool used = k <= static_cast<int>(paths.size());
    entries_(k).setCaption(used ? prefixOf(k) + paths[static_cast<std::size_t>(k - 1)] : std::string());
    entries_(k).setVisible(used);
  }
}

}  // namespace kestra
