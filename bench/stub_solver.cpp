// A solver that takes no time of its own: leaves a digest and a routing table of two rows under the name of the file
// that it is given.
#include <cstdio>
#include <string>

namespace {

void write(const std::string& path, const char* text) {
  std::FILE* file = std::fopen(path.c_str(), "w");
  if (file == nullptr) return;
  std::fputs(text, file);
  std::fclose(file);
}

}  // namespace

int main(int count, char** arguments) {
  const std::string given = count > 1 ? arguments[count - 1] : "";
  const std::string stem = given.substr(0, given.rfind('.'));
  write(stem + ".OUT",
        "Hydrograph Routing\n (hr)\n ---\n         0         1         2\n         1         1         2\n");
  write(stem + ".DIS", "a\nb\nc\nd\n");
}
