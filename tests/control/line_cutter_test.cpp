#include "control/line_cutter.h"

#include <gtest/gtest.h>

#include <string>

namespace kestra {
namespace {

TEST(IsPlainAscii, findsAByteAboveAsciiWhereverItStands) {
  for (std::size_t length = 0; length <= 33; ++length) {
    EXPECT_TRUE(isPlainAscii(std::string(length, '\x7F'))) << length;
    for (std::size_t at = 0; at < length; ++at) {
      std::string text(length, 'a');
      text[at] = '\x80';
      EXPECT_FALSE(isPlainAscii(text)) << length << ", " << at;
    }
  }
}

TEST(LineCutter, cutsAsColumnsDoes) {
  for (const std::string_view line : {"", "short", "KESTRA    01/01/2009pond", "K\xC3\xA4STRA    01/01/2009p\xF6nd"}) {
    for (int first = 1; first <= 30; ++first) {
      EXPECT_EQ(LineCutter(line).cut(first, 10), columns(line, first, 10)) << line << ", " << first;
    }
  }
}

}  // namespace
}  // namespace kestra
