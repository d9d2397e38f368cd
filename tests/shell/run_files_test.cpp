#include "shell/run_files.h"

#include <gtest/gtest.h>

#include "platform/memory_file_system.h"

namespace kestra {
namespace {

using Names = std::vector<std::string>;

struct Row {
  const char* controlFile;
  Names others;  // in its directory; a name that ends in "/" is a directory
  Names removed;
};

std::vector<DirectoryEntry> entriesOf(const Names& names) {
  std::vector<DirectoryEntry> entries;
  for (const std::string& name : names) {
    const bool directory = name.ends_with('/');
    entries.push_back({directory ? name.substr(0, name.size() - 1) : name,
                       directory ? FileStatus::Type::directory : FileStatus::Type::file});
  }
  return entries;
}

TEST(FilesOfARun, areThoseThatAreNamedAfterItAndNoOthers) {
  const Row table[] = {
      {"dam.KSC", {"dam.OUT", "dam.DG1", "dam.AS1", "dam.a.b"}, {"dam.OUT", "dam.DG1", "dam.AS1", "dam.a.b"}},
      {"dam.KSC", {"dam_0.OUT", "dam_", "dam1_0.V2D", "dam3_"}, {"dam_0.OUT", "dam_", "dam1_0.V2D", "dam3_"}},
      {"dam.KSC", {"dam/", "dam.old/", "dam_x/", "dam1_/"}, {"dam"}},
      {"dam.KSC", {"dam", "dam1", "dam4_0.OUT", "dam0_1", "dam1x_", "damp.OUT", "Dam.OUT", "adam.OUT"}, {}},
      {"dam.KSC", {"dam.KSC", "dam.V2C", "dam.v2c", "dam_1.KSC", "dam1_a.ksc", "dam.2.KSC"}, {}},
      {"dam.KSC", {"dam.2.KSC", "dam.2.OUT", "dam.2_1.OUT", "dam.21_0.DG1", "dam.OUT"}, {"dam.OUT"}},
      {"dam.2.KSC", {"dam.KSC", "dam.OUT", "dam.2.OUT", "dam.2/", "dam/"}, {"dam.2.OUT", "dam.2"}},
      {"dam.KSC", {"dam1_a.KSC", "dam1_a.OUT", "dam1_0.OUT"}, {"dam1_0.OUT"}},
      {"dam.KSC", {"dam.ksc", "dam.OUT", "dam/"}, {}},
      {"dam.txt", {"dam.txt", "dam.OUT"}, {"dam.OUT"}},
      {"dam", {"dam", "dam.OUT"}, {"dam.OUT"}},
      {".KSC", {".OUT", "x"}, {}},
  };
  for (const Row& row : table) {
    EXPECT_EQ(filesOfRun(entriesOf(row.others), row.controlFile), row.removed)
        << row.controlFile << " beside " << row.others.front();
  }
}

TEST(ControlFiles, areThoseWithTheirExtensionInWhateverLetterCase) {
  MemoryFileSystem files;
  for (const char* name : {"b.KSC", "a.ksc", "c.Ksc", "d.KSC.OUT", "KSC", "e.V2C"}) {
    files.put(std::string("/dam/") + name, "");
  }
  files.putDirectory("/dam/f.KSC");
  EXPECT_EQ(controlFilesIn(files, "/dam"), (Names{"a.ksc", "b.KSC", "c.Ksc"}));
  EXPECT_EQ(controlFilesIn(files, "/nowhere"), Names());
}

TEST(StemOf, endsBeforeTheLastDot) {
  const std::pair<const char*, const char*> table[] = {{"dam.KSC", "dam"}, {"a.b.KSC", "a.b"}, {"dam", "dam"}};
  for (const auto& [name, stem] : table) EXPECT_EQ(stemOf(name), stem);
}

}  // namespace
}  // namespace kestra
