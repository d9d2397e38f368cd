#include "platform/memory_tree.h"

#include <algorithm>
#include <deque>
#include <optional>
#include <utility>

#include "base/paths.h"

namespace kestra::memory_tree {
namespace {

constexpr std::size_t kLongestPath = 4095;
constexpr std::size_t kLongestName = 255;
constexpr int kMostLinks = 40;

std::optional<Failure> badPath(const std::string& path) {
  if (path.empty()) return Failure{FailureKind::invalidName, path, "The name is empty"};
  if (path.find('\0') != std::string::npos) {
    return Failure{FailureKind::invalidName, path, "The name holds a zero byte"};
  }
  if (path.size() > kLongestPath) return Failure{FailureKind::invalidName, path, "File name too long"};
  return std::nullopt;
}

// Puts the parts of `path` in front of those that are still to walk.
void split(std::string_view path, std::deque<std::string>& parts) {
  std::vector<std::string> found;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find('/'), path.size());
    if (end > 0) found.emplace_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  parts.insert(parts.begin(), found.begin(), found.end());
}

NodePtr childOf(const Node& directory, const std::string& name) {
  const auto child = directory.children.find(name);
  return child == directory.children.end() ? nullptr : child->second;
}

}  // namespace

NodePtr makeNode(FileStatus::Type type, std::int64_t modifiedNs) {
  auto node = std::make_shared<Node>();
  node->type = type;
  node->modifiedNs = modifiedNs;
  return node;
}

Result<Place> walk(const NodePtr& root, const std::string& current, const std::string& path, bool followLast) {
  if (auto bad = badPath(path)) return *bad;
  std::deque<std::string> parts;
  split(path, parts);
  if (path.back() == '/') parts.emplace_back(".");
  if (path.front() != '/') split(current, parts);
  std::vector<Place> way = {{root, root, "", "/"}};
  int links = 0;
  while (!parts.empty()) {
    const std::string part = std::exchange(parts.front(), {});
    parts.pop_front();
    const NodePtr here = way.back().node;
    if (!here) return missing(path);
    if (here->type != FileStatus::Type::directory) return noDirectory(path);
    if (part == "..") {
      if (way.size() > 1) way.pop_back();
      continue;
    }
    if (part == ".") continue;
    if (part.size() > kLongestName) return Failure{FailureKind::invalidName, path, "File name too long"};
    NodePtr node = childOf(*here, part);
    if (node && node->type == FileStatus::Type::link && (followLast || !parts.empty())) {
      if (++links > kMostLinks) return Failure{FailureKind::other, path, "Too many levels of symbolic links"};
      split(node->bytes, parts);
      if (node->bytes.starts_with('/')) way.resize(1);
      continue;
    }
    way.push_back({here, std::move(node), part, joinPath(way.back().path, part)});
  }
  return way.back();
}

Failure missing(const std::string& path) {
  return {FailureKind::notFound, path, "No such file or directory"};
}
Failure denied(const std::string& path) {
  return {FailureKind::denied, path, "Permission denied"};
}
Failure taken(const std::string& path) {
  return {FailureKind::exists, path, "File exists"};
}
Failure aDirectory(const std::string& path) {
  return {FailureKind::wrongType, path, "Is a directory"};
}
Failure noDirectory(const std::string& path) {
  return {FailureKind::wrongType, path, "Not a directory"};
}
Failure notEmpty(const std::string& path) {
  return {FailureKind::other, path, "Directory not empty"};
}

}  // namespace kestra::memory_tree
