#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

// Runs under the locale of the environment, as the desktop program does. Where the suite is run under a locale with a
// decimal comma, KESTRA_DECIMAL_COMMA is set, and a locale that did not take effect is a failure.
int main(int argc, char** argv) {
  std::setlocale(LC_ALL, "");
  testing::InitGoogleTest(&argc, argv);
  if (std::getenv("KESTRA_DECIMAL_COMMA") != nullptr && std::localeconv()->decimal_point[0] != ',') return 3;
  return RUN_ALL_TESTS();
}
