#include "summary/digest_places.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/memory_file_system.h"

namespace kestra {
namespace {

// "dam path|instance path|instance" of an entry, with "-" for a digest that is not there.
std::string placesOf(MemoryFileSystem& files, std::string_view name) {
  const EntryDigests digests = DigestPlaces(files, "/p").find(name);
  return digests.dam.value_or("-") + "|" + digests.instance.value_or("-") + (digests.ofInstance ? "|instance" : "");
}

TEST(DigestPlaces, ofADamStandInTheProject) {
  MemoryFileSystem files;
  files.put("/p/run.DIS", "");
  files.put("/p/other.dis", "");
  files.put("/p/a.b.DIS", "");
  files.put("/p/_x.DIS", "");
  files.putDirectory("/p/hollow.DIS");
  EXPECT_EQ(placesOf(files, "run"), "/p/run.DIS|-");
  EXPECT_EQ(placesOf(files, "OTHER"), "/p/other.dis|-");
  EXPECT_EQ(placesOf(files, "a.b"), "/p/a.b.DIS|-");
  EXPECT_EQ(placesOf(files, "_x"), "/p/_x.DIS|-");
  for (const char* name : {"gone", "hollow", "", "run.DIS"}) EXPECT_EQ(placesOf(files, name), "-|-") << name;
  files.put("/p/run/run.DIS", "");
  EXPECT_EQ(placesOf(files, "run"), "/p/run.DIS|/p/run/run.DIS");
}

TEST(DigestPlaces, ofAnInstanceStandInTheDirectoryOfItsRun) {
  MemoryFileSystem files;
  files.put("/p/run.DIS", "");
  files.put("/p/run/run_4.DIS", "");
  files.put("/p/run/run2_0.dis", "");
  files.put("/p/big_run.DIS", "");
  files.put("/p/big_run/big_run1_0.DIS", "");
  files.put("/p/run/run2_0/a.DIS", "");
  EXPECT_EQ(placesOf(files, "run_4"), "/p/run.DIS|/p/run/run_4.DIS|instance");
  EXPECT_EQ(placesOf(files, "run2_0"), "/p/run.DIS|/p/run/run2_0.dis|instance");
  files.put("/p/run/run1_0/a.DIS", "");
  EXPECT_EQ(placesOf(files, "run/run1_0/a"), "/p/run.DIS|/p/run/run1_0/a.DIS|instance");
  EXPECT_EQ(placesOf(files, "run2_0/a"), "/p/run.DIS|/p/run/run2_0/a.DIS|instance");
  EXPECT_EQ(placesOf(files, "big_run1_0"), "/p/big_run.DIS|/p/big_run/big_run1_0.DIS|instance");
  EXPECT_EQ(placesOf(files, "run2_9"), "/p/run.DIS|-|instance");
  EXPECT_EQ(placesOf(files, "gone_1"), "-|-|instance");
}

TEST(DigestPlaces, ofADamWithUnderscoreInItsNameAreFoundToo) {
  MemoryFileSystem files;
  files.put("/p/big_run.DIS", "");
  EXPECT_EQ(placesOf(files, "big_run"), "/p/big_run.DIS|-");
}

TEST(DigestPlaces, tellWhereTheFilesOfAnEntryAndOfItsRunStand) {
  MemoryFileSystem files;
  for (const char* path : {"dam.DIS", "dam/dam1_0.DIS", "dam/dam1_1/a.DIS", "east1/east1_0.DIS", "a_b.DIS"}) {
    files.put(std::string("/p/") + path, "");
  }
  const struct {
    const char* name;
    const char* stem;
    const char* run;
    bool ofInstance;
  } cases[] = {
      {"dam", "/p/dam", "/p/dam", false},
      {"gone", "/p/gone", "/p/gone", false},
      {"a_b", "/p/a_b", "/p/a_b", false},
      {"dam1_0", "/p/dam/dam1_0", "/p/dam", true},
      {"dam1_9", "/p/dam/dam1_9", "/p/dam", true},
      {"dam/dam1_1/a", "/p/dam/dam1_1/a", "/p/dam", true},
      {"east1_0", "/p/east1/east1_0", "/p/east1", true},
      {"east1_7", "/p/east1/east1_7", "/p/east1", true},
      {"gone1_0", "/p/gone1/gone1_0", "/p/gone1", true},
      {"dam4_0", "/p/dam4/dam4_0", "/p/dam4", true},
  };
  for (const auto& each : cases) {
    const EntryPlace place = DigestPlaces(files, "/p").place(each.name);
    EXPECT_EQ(place.stem, each.stem) << each.name;
    EXPECT_EQ(place.run, each.run) << each.name;
    EXPECT_EQ(place.ofInstance, each.ofInstance) << each.name;
  }
  for (const char* name : {"", ".", "..", "../x", "x/", "x/.", "/x", "a/../b"}) {
    EXPECT_EQ(DigestPlaces(files, "/p").place(name).stem, "") << name;
  }
}

TEST(DigestPlaces, neverLieOutsideOfTheProject) {
  MemoryFileSystem files;
  files.put("/secret.DIS", "");
  files.put("/p-evil/x.DIS", "");
  for (const char* name : {"../secret", "../p-evil/x", "a/../../secret", ".", "../secret_1", "/.."}) {
    EXPECT_EQ(placesOf(files, name), "-|-") << name;
  }
}

TEST(DigestPlaces, areLookedUpInOneListingOfADirectory) {
  MemoryFileSystem files;
  files.put("/p/a.dis", "");
  files.put("/p/b.dis", "");
  DigestPlaces places(files, "/p");
  files.log.clear();
  for (const char* name : {"a", "b", "c", "d"}) places.find(name);
  const auto listings = std::count_if(files.log.begin(), files.log.end(),
                                      [](const std::string& line) { return line.starts_with("list"); });
  EXPECT_EQ(listings, 1);
}

}  // namespace
}  // namespace kestra
