#include "platform/memory_file_system.h"

#include <algorithm>

#include "base/paths.h"

namespace kestra {

using Type = FileStatus::Type;
using namespace memory_tree;

namespace {

FileStatus statusOf(const Node& node) {
  return {node.type, node.type == Type::file ? node.bytes.size() : 0, node.modifiedNs, node.writable};
}

void gatherPaths(const Node& directory, const std::string& path, std::vector<std::string>& paths) {
  for (const auto& [name, child] : directory.children) {
    const std::string below = joinPath(path, name);
    paths.push_back(below);
    gatherPaths(*child, below, paths);
  }
}

}  // namespace

class MemoryFileSystem::Output : public OutputFile {
 public:
  Output(MemoryFileSystem& files, NodePtr node, std::string path)
      : files_(files), node_(std::move(node)), path_(std::move(path)) {}

  Status write(std::string_view bytes) override {
    files_.log.push_back("write " + path_ + " " + std::to_string(bytes.size()));
    node_->bytes += bytes;
    node_->modifiedNs = files_.clockNs;
    return Done();
  }
  Status sync() override {
    files_.note("sync", path_);
    return Done();
  }
  Status close() override {
    files_.note("close", path_);
    return Done();
  }

 private:
  MemoryFileSystem& files_;
  NodePtr node_;
  std::string path_;
};

class MemoryFileSystem::Lock : public FileLock {
 public:
  explicit Lock(NodePtr node) : node_(std::move(node)) { node_->holder = "another program"; }
  ~Lock() override { node_->holder.clear(); }

 private:
  NodePtr node_;
};

MemoryFileSystem::MemoryFileSystem() : root_(makeNode(Type::directory, 0)) {}

void MemoryFileSystem::note(std::string_view operation, const std::string& path) {
  log.push_back(std::string(operation) + " " + absolutePath(path, current_));
}

void MemoryFileSystem::note(std::string_view operation, const std::string& from, const std::string& to) {
  note(operation, from);
  log.back() += " -> " + absolutePath(to, current_);
}

Result<Place> MemoryFileSystem::find(const std::string& path, bool followLast) const {
  Result<Place> place = walk(root_, current_, path, followLast);
  if (place && !place.value().node) return missing(path);
  return place;
}

Result<Place> MemoryFileSystem::findFree(const std::string& path) const {
  Result<Place> place = walk(root_, current_, path, false);
  if (!place) return place;
  if (place.value().node) return taken(path);
  if (!place.value().directory->writable) return denied(path);
  return place;
}

Result<FileStatus> MemoryFileSystem::status(const std::string& path) {
  note("status", path);
  const Result<Place> place = find(path, true);
  if (!place) return place.failure();
  return statusOf(*place.value().node);
}

Result<FileStatus> MemoryFileSystem::linkStatus(const std::string& path) {
  note("linkStatus", path);
  const Result<Place> place = find(path, false);
  if (!place) return place.failure();
  return statusOf(*place.value().node);
}

Result<const std::string*> MemoryFileSystem::bytesOf(const std::string& path) const {
  const Result<Place> place = find(path, true);
  if (!place) return place.failure();
  const Node& node = *place.value().node;
  if (!node.readable) return denied(path);
  if (node.type == Type::directory) return aDirectory(path);
  return &node.bytes;
}

Result<std::string> MemoryFileSystem::read(const std::string& path, std::uint64_t limit) {
  note("read", path);
  const auto bytes = bytesOf(path);
  if (!bytes) return bytes.failure();
  if (bytes.value()->size() > limit) return Failure{FailureKind::tooLarge, path, "File too large"};
  return *bytes.value();
}

Result<std::string> MemoryFileSystem::readStart(const std::string& path, std::uint64_t most) {
  note("readStart", path);
  const auto bytes = bytesOf(path);
  if (!bytes) return bytes.failure();
  return bytes.value()->substr(0, most);
}

Result<std::vector<DirectoryEntry>> MemoryFileSystem::list(const std::string& path) {
  note("list", path);
  const Result<Place> place = find(path, false);
  if (!place) return place.failure();
  const Node& node = *place.value().node;
  if (node.type != Type::directory) return noDirectory(path);
  if (!node.readable) return denied(path);
  std::vector<DirectoryEntry> entries;
  for (const auto& [name, child] : node.children) entries.push_back({name, child->type});
  return entries;
}

Result<std::string> MemoryFileSystem::canonical(const std::string& path) {
  note("canonical", path);
  const Result<Place> place = find(path, true);
  if (!place) return place.failure();
  return place.value().path;
}

Status MemoryFileSystem::makeDirectory(const std::string& path) {
  note("makeDirectory", path);
  std::string plain = path;
  while (plain.size() > 1 && plain.back() == '/') plain.pop_back();
  const Result<Place> place = findFree(plain);
  if (!place) return Failure{place.failure().kind, path, place.failure().reason};
  place.value().directory->children[place.value().name] = makeNode(Type::directory, clockNs);
  return Done();
}

Result<std::unique_ptr<OutputFile>> MemoryFileSystem::createNew(const std::string& path) {
  note("createNew", path);
  const Result<Place> place = findFree(path);
  if (!place) return place.failure();
  const NodePtr node = makeNode(Type::file, clockNs);
  place.value().directory->children[place.value().name] = node;
  return std::unique_ptr<OutputFile>(std::make_unique<Output>(*this, node, place.value().path));
}

Result<std::unique_ptr<OutputFile>> MemoryFileSystem::append(const std::string& path) {
  note("append", path);
  const Result<Place> place = walk(root_, current_, path, true);
  if (!place) return place.failure();
  NodePtr node = place.value().node;
  if (!node) {
    if (!place.value().directory->writable) return denied(path);
    node = makeNode(Type::file, clockNs);
    place.value().directory->children[place.value().name] = node;
  }
  if (node->type == Type::directory) return aDirectory(path);
  if (!node->writable) return denied(path);
  return std::unique_ptr<OutputFile>(std::make_unique<Output>(*this, node, place.value().path));
}

Status MemoryFileSystem::rename(const std::string& from, const std::string& to) {
  note("rename", from, to);
  const Result<Place> source = find(from, false);
  if (!source) return source.failure();
  const Result<Place> target = walk(root_, current_, to, false);
  if (!target) return target.failure();
  const Place& old = source.value();
  const Place& fresh = target.value();
  if (!old.directory->writable || !fresh.directory->writable) return denied(from);
  if (old.node == fresh.node) return Done();
  const bool moving = old.node->type == Type::directory;
  if (moving && fresh.path.starts_with(joinPath(old.path, ""))) {
    return Failure{FailureKind::other, from, "Invalid argument"};
  }
  if (fresh.node) {
    const bool replacing = fresh.node->type == Type::directory;
    if (moving && !replacing) return noDirectory(to);
    if (replacing && !moving) return aDirectory(to);
    if (!fresh.node->children.empty()) return notEmpty(to);
  }
  const NodePtr node = old.node;
  old.directory->children.erase(old.name);
  fresh.directory->children[fresh.name] = node;
  return Done();
}

Status MemoryFileSystem::syncDirectory(const std::string& path) {
  note("syncDirectory", path);
  const Result<Place> place = find(path, false);
  if (!place) return place.failure();
  if (place.value().node->type != Type::directory) return noDirectory(path);
  return Done();
}

Status MemoryFileSystem::removeFile(const std::string& path) {
  note("removeFile", path);
  const Result<Place> place = find(path, false);
  if (!place) return place.failure();
  if (place.value().node->type == Type::directory) return aDirectory(path);
  if (!place.value().directory->writable) return denied(path);
  place.value().directory->children.erase(place.value().name);
  return Done();
}

Status MemoryFileSystem::removeDirectory(const std::string& path) {
  note("removeDirectory", path);
  const Result<Place> place = find(path, false);
  if (!place) return place.failure();
  const Place& found = place.value();
  if (found.node->type != Type::directory) return noDirectory(path);
  if (!found.directory->writable) return denied(path);
  if (!found.node->children.empty()) return notEmpty(path);
  found.directory->children.erase(found.name);
  return Done();
}

Status MemoryFileSystem::setReadOnly(const std::string& path, bool readOnly) {
  note("setReadOnly", path);
  const Result<Place> place = find(path, true);
  if (!place) return place.failure();
  place.value().node->writable = !readOnly;
  return Done();
}

Status MemoryFileSystem::copyMode(const std::string& from, const std::string& to) {
  note("copyMode", from, to);
  const Result<Place> source = find(from, true);
  if (!source) return source.failure();
  const Result<Place> target = find(to, true);
  if (!target) return target.failure();
  target.value().node->readable = source.value().node->readable;
  target.value().node->writable = source.value().node->writable;
  return Done();
}

Status MemoryFileSystem::changeDirectory(const std::string& path) {
  note("changeDirectory", path);
  const Result<Place> place = find(path, true);
  if (!place) return place.failure();
  if (place.value().node->type != Type::directory) return noDirectory(path);
  current_ = place.value().path;
  return Done();
}

std::string MemoryFileSystem::currentDirectory() {
  return find(current_, false) ? current_ : "/";
}

Result<std::unique_ptr<FileLock>> MemoryFileSystem::lock(const std::string& path) {
  note("lock", path);
  const Result<Place> place = find(path, true);
  if (!place) return place.failure();
  const NodePtr node = place.value().node;
  if (!node->readable) return denied(path);
  if (!node->holder.empty()) return Failure{FailureKind::busy, path, node->holder};
  return std::unique_ptr<FileLock>(std::make_unique<Lock>(node));
}

NodePtr MemoryFileSystem::at(const std::string& path) const {
  const Result<Place> place = find(path, false);
  return place ? place.value().node : nullptr;
}

void MemoryFileSystem::putDirectory(const std::string& path) {
  if (at(path)) return;
  putDirectory(std::string(directoryOf(path)));
  at(std::string(directoryOf(path)))->children[std::string(ParsePathName(path))] = makeNode(Type::directory, clockNs);
}

void MemoryFileSystem::put(const std::string& path, std::string_view bytes) {
  const std::string directory(directoryOf(path));
  putDirectory(directory);
  const NodePtr node = makeNode(Type::file, clockNs);
  node->bytes = bytes;
  at(directory)->children[std::string(ParsePathName(path))] = node;
}

void MemoryFileSystem::putLink(const std::string& path, const std::string& target) {
  put(path, target);
  at(path)->type = Type::link;
}

void MemoryFileSystem::setMode(const std::string& path, bool readable, bool writable) {
  const NodePtr node = at(path);
  node->readable = readable;
  node->writable = writable;
}

void MemoryFileSystem::holdLock(const std::string& path, const std::string& holder) {
  at(path)->holder = holder;
}

void MemoryFileSystem::setRoots(std::vector<std::string> roots) {
  roots_ = std::move(roots);
  std::sort(roots_.begin(), roots_.end());
}

std::optional<std::string> MemoryFileSystem::content(const std::string& path) const {
  const NodePtr node = at(path);
  if (!node || node->type != Type::file) return std::nullopt;
  return node->bytes;
}

std::vector<std::string> MemoryFileSystem::paths() const {
  std::vector<std::string> paths;
  gatherPaths(*root_, "/", paths);
  std::sort(paths.begin(), paths.end());
  return paths;
}

}  // namespace kestra
