// Driver for a fuzz target: runs it over its seeds and over inputs that are changed at random from them.
//
//   TARGET RUNS SEED KEEP     RUNS inputs, the same for the same SEED; the input that is running stands in the file
//                             KEEP, so that it is at hand when the program dies; at the end the file is removed
//   TARGET FILE               one input, out of a file

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

#include "fuzz_target.h"

namespace {

// xorshift64* (Vigna, 2016): the same row of numbers with every compiler and library.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed * 2685821657736338717ULL + 88172645463325252ULL) {}

  std::uint64_t next() {
    state_ ^= state_ >> 12U;
    state_ ^= state_ << 25U;
    state_ ^= state_ >> 27U;
    return state_ * 2685821657736338717ULL;
  }
  // From 0 up to, not including, `end`; 0 when `end` is 0.
  std::size_t below(std::size_t end) { return end == 0 ? 0 : static_cast<std::size_t>((next() >> 11U) % end); }
  char byte() { return static_cast<char>(next() >> 56U); }

 private:
  std::uint64_t state_;
};

// Texts on which readers of texts and numbers stumble.
std::string_view awkwardText(Random& random) {
  using namespace std::string_view_literals;
  static constexpr std::string_view kTexts[] = {"\r\n",
                                                "\n",
                                                "\r",
                                                "\t",
                                                " ",
                                                "\0"sv,
                                                "\"",
                                                "\\",
                                                ",",
                                                ";",
                                                "#",
                                                "=",
                                                "[",
                                                "]",
                                                "-",
                                                "+",
                                                ".",
                                                "0",
                                                "1",
                                                "-1",
                                                "1e999",
                                                "-1e-999",
                                                "1D5",
                                                "nan",
                                                "inf",
                                                "\x1a",
                                                "\xff",
                                                "\xc3",
                                                "\xc3\xa4",
                                                "\xe2\x82",
                                                "T",
                                                "F",
                                                "99999",
                                                "2147483648",
                                                "%s",
                                                "/../",
                                                "          ",
                                                "\"\"",
                                                "\xef\xbb\xbf",
                                                "9223372036854775808"};
  return kTexts[random.below(std::size(kTexts))];
}

// A piece of `text`: at most 64 bytes, or now and then of any length.
std::string_view piece(const std::string& text, Random& random) {
  const std::size_t from = random.below(text.size());
  return std::string_view(text).substr(from, 1 + random.below(random.below(16) == 0 ? text.size() : 64));
}

void mutate(std::string& input, const std::string& other, Random& random) {
  const std::size_t at = random.below(input.size() + 1);
  const std::string_view part = piece(input, random);
  switch (random.below(8)) {
    case 0:  // one bit
      if (at < input.size()) input[at] = static_cast<char>(input[at] ^ (1 << random.below(8)));
      break;
    case 1:  // one byte
      if (at < input.size()) input[at] = random.byte();
      break;
    case 2:
      input.insert(at, awkwardText(random));
      break;
    case 3:  // awkward text over what stands there
      if (at < input.size()) input.replace(at, 1, awkwardText(random));
      break;
    case 4:
      input.erase(at, part.size());
      break;
    case 5:  // a piece once more
      input.insert(at, std::string(part));
      break;
    case 6:  // a piece of another input
      input.insert(at, piece(other, random));
      break;
    default:  // cut off, seldom, since little is left
      if (random.below(4) == 0) input.resize(at);
  }
}

void runOne(const std::string& input) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

// Over what is there, cut to length after: some file systems wait for the disk when a file is emptied and written
// again.
void keep(const char* path, const std::string& input) {
  std::fstream(path, std::ios::binary | std::ios::in | std::ios::out) << input;
  std::filesystem::resize_file(path, input.size());
}

int runMany(std::size_t runs, std::uint64_t seed, const char* kept) {
  constexpr std::size_t kPool = 256;
  constexpr std::size_t kLongest = 1U << 14U;
  std::vector<std::string> pool = kestra::fuzzSeeds();
  pool.emplace_back();
  const std::size_t seeds = pool.size();
  Random random(seed);
  std::ofstream(kept).close();
  for (std::size_t run = 0; run < seeds + runs; ++run) {
    std::string input = pool[run < seeds ? run : random.below(pool.size())];
    if (run >= seeds) {
      for (std::size_t left = 1 + random.below(6); left > 0; --left) mutate(input, pool[random.below(seeds)], random);
      input.resize(std::min(input.size(), kLongest));
    }
    keep(kept, input);
    runOne(input);
    if (run < seeds || random.below(8) != 0) continue;
    if (pool.size() < kPool) {
      pool.push_back(std::move(input));
    } else {
      pool[seeds + random.below(kPool - seeds)] = std::move(input);
    }
  }
  std::remove(kept);
  std::printf("%zu inputs\n", seeds + runs);
  return 0;
}

std::uint64_t number(std::string_view text) {
  std::uint64_t value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 4) return runMany(number(argv[1]), number(argv[2]), argv[3]);
  if (argc == 2) {
    std::ifstream file(argv[1], std::ios::binary);
    if (!file) return 1;
    runOne({std::istreambuf_iterator<char>(file), {}});
    return 0;
  }
  std::fprintf(stderr, "usage: %s RUNS SEED KEEP | FILE\n", argv[0]);
  return 2;
}
