#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/file_system.h"

// The tree under MemoryFileSystem: its nodes, and how paths lead through it.
namespace kestra::memory_tree {

struct Node;
using NodePtr = std::shared_ptr<Node>;

struct Node {
  FileStatus::Type type = FileStatus::Type::file;
  std::string bytes;  // of a file; the target of a link
  std::map<std::string, NodePtr> children;
  std::int64_t modifiedNs = 0;
  bool readable = true;
  bool writable = true;
  std::string holder;  // who holds its lock; empty: nobody
};

// Where a path leads. The root has an empty name and is its own directory.
struct Place {
  NodePtr directory;
  NodePtr node;  // what stands there; null: nothing
  std::string name;
  std::string path;  // absolute, without links but for a last one that was not followed
};

NodePtr makeNode(FileStatus::Type type, std::int64_t modifiedNs);

// Follows `path` from `root`, or from `current` when it is relative. Its last part need not exist.
Result<Place> walk(const NodePtr& root, const std::string& current, const std::string& path, bool followLast);

// The failures, in the words of this machine's file system.
Failure missing(const std::string& path);
Failure denied(const std::string& path);
Failure taken(const std::string& path);
Failure aDirectory(const std::string& path);
Failure noDirectory(const std::string& path);
Failure notEmpty(const std::string& path);

}  // namespace kestra::memory_tree
