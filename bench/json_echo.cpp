// The least that a program with a line of JSON for each line of JSON does: reads, parses, writes it back.
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

int main() {
  std::ios::sync_with_stdio(false);
  std::string line;
  while (std::getline(std::cin, line)) {
    std::cout << nlohmann::ordered_json::parse(line).dump() << '\n' << std::flush;
  }
}
