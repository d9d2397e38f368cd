#include "control/file_names.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

struct NameCase {
  const char* file;
  const char* spillway;
  const char* output;
  const char* companion;
};

class FileNames : public testing::TestWithParam<NameCase> {};

TEST_P(FileNames, areMadeFromThatOfTheControlFile) {
  EXPECT_EQ(spillwayFileOf(GetParam().file, 0), GetParam().spillway);
  EXPECT_EQ(outputFileOf(GetParam().file), GetParam().output);
  EXPECT_EQ(companionFileOf(GetParam().file), GetParam().companion);
}

INSTANTIATE_TEST_SUITE_P(Names, FileNames,
                         testing::Values(NameCase{"/p/dam.KSC", "/p/dam.AS1", "/p/dam.OUT", "/p/.kestra/dam.json"},
                                         NameCase{"dam.ksc", "dam.AS1", "dam.OUT", ".kestra/dam.json"},
                                         NameCase{"/p.x/dam", "/p.x/dam.AS1", "/p.x/dam.OUT", "/p.x/.kestra/dam.json"},
                                         NameCase{"/p/a.b.KSC", "/p/a.b.AS1", "/p/a.b.OUT", "/p/.kestra/a.b.json"},
                                         NameCase{"/dam.KSC", "/dam.AS1", "/dam.OUT", "/.kestra/dam.json"}));

}  // namespace
}  // namespace kestra
