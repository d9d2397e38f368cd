#pragma once

#include <optional>

#include "platform/file_system.h"
#include "platform/memory_tree.h"

namespace kestra {

// A file system that is held in memory, for tests: directories, links, permissions of the owner, and a modification
// clock that stands still until it is turned on by hand. It gives the kinds and words of failure that the file system
// of this machine gives to a user without special rights. Every access through the port is logged; the functions of the
// second part, by which a test sets the scene, pass over permissions and are not logged. It has to outlive the files
// that are written in it.
class MemoryFileSystem : public FileSystem {
 public:
  MemoryFileSystem();

  Result<FileStatus> status(const std::string& path) override;
  Result<FileStatus> linkStatus(const std::string& path) override;
  Result<std::string> read(const std::string& path, std::uint64_t limit) override;
  Result<std::string> readStart(const std::string& path, std::uint64_t most) override;
  Result<std::vector<DirectoryEntry>> list(const std::string& path) override;
  Result<std::string> canonical(const std::string& path) override;
  Status makeDirectory(const std::string& path) override;
  Result<std::unique_ptr<OutputFile>> createNew(const std::string& path) override;
  Result<std::unique_ptr<OutputFile>> append(const std::string& path) override;
  Status rename(const std::string& from, const std::string& to) override;
  Status syncDirectory(const std::string& path) override;
  Status removeFile(const std::string& path) override;
  Status removeDirectory(const std::string& path) override;
  Status setReadOnly(const std::string& path, bool readOnly) override;
  Status copyMode(const std::string& from, const std::string& to) override;
  Status changeDirectory(const std::string& path) override;
  std::string currentDirectory() override;
  std::vector<std::string> roots() override { return roots_; }
  Result<std::unique_ptr<FileLock>> lock(const std::string& path) override;

  // To set and to see the scene. Paths are absolute; the directories that are missing above a new thing are made.
  void put(const std::string& path, std::string_view bytes);
  void putDirectory(const std::string& path);
  void putLink(const std::string& path, const std::string& target);
  void setMode(const std::string& path, bool readable, bool writable);  // of a file or a directory
  // What another program does: it holds the file ("program sh, process 7, of user ann"), or, with "", no longer.
  void holdLock(const std::string& path, const std::string& holder);
  void setRoots(std::vector<std::string> roots);                      // sorted by this
  std::optional<std::string> content(const std::string& path) const;  // of a file, links not followed
  std::vector<std::string> paths() const;                             // of all there is, sorted, without "/"

  std::int64_t clockNs = 0;      // what a file that changes now gets as its time
  std::vector<std::string> log;  // "read /a/b", "rename /a -> /b", "write /a 12", in the order of the calls

 private:
  class Output;
  class Lock;
  using Place = memory_tree::Place;
  using NodePtr = memory_tree::NodePtr;

  void note(std::string_view operation, const std::string& path);
  void note(std::string_view operation, const std::string& from, const std::string& to);
  Result<Place> find(const std::string& path, bool followLast) const;  // notFound when there is nothing
  Result<Place> findFree(const std::string& path) const;  // exists when taken, denied in a read-only directory
  Result<const std::string*> bytesOf(const std::string& path) const;  // of a file that may be read
  NodePtr at(const std::string& path) const;                          // links not followed; what has to be there

  NodePtr root_;
  std::string current_ = "/";
  std::vector<std::string> roots_ = {"/"};
};

}  // namespace kestra
