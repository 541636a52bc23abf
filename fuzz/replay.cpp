// Gives one target every input of its corpus, and each of these some ways damaged, the same ways in every run:
//   fuzz_replay TARGET FOLDER LONGEST
// A target that breaks ends the process; the last line that was printed says with which input.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#define TARGET(name) extern "C" int fuzz_##name(const std::uint8_t* data, std::size_t size);
#include "targets.inc"
#undef TARGET

namespace {

struct Target {
  std::string_view name;
  int (*take)(const std::uint8_t* data, std::size_t size);
};
constexpr Target targets[] = {
#define TARGET(name) {#name, fuzz_##name},
#include "targets.inc"
#undef TARGET
};

constexpr int damages = 30;

std::string bytes_of(const std::filesystem::path& path) {
  std::ifstream file{path, std::ios::binary};
  if (!file) throw std::runtime_error{path.string() + " cannot be read"};
  return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
}

/// The input cut short, with some bytes changed, or with a piece of it standing twice.
std::string damaged(std::string input, std::mt19937& random) {
  const auto below = [&random](std::size_t limit) { return limit == 0 ? 0 : random() % limit; };
  switch (below(4)) {
    case 0:
      input.resize(below(input.size() + 1));
      break;
    case 1: {
      const std::size_t first = below(input.size());
      input.insert(below(input.size()), input.substr(first, below(64)));
      break;
    }
    default:
      for (std::size_t changes = input.empty() ? 0 : 1 + below(4); changes > 0; --changes) {
        input[below(input.size())] = static_cast<char>(random());
      }
  }
  return input;
}

void give(const Target& target, const std::string& input, std::size_t longest) {
  const std::size_t size = std::min(input.size(), longest);
  // A buffer of just that size, so that a read past its end is seen.
  const std::vector<std::uint8_t> data{input.begin(), input.begin() + static_cast<std::ptrdiff_t>(size)};
  target.take(data.data(), data.size());
}

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> words{arguments + 1, arguments + count};
  const auto* const target = words.size() != 3 ? std::end(targets)
                                               : std::find_if(std::begin(targets), std::end(targets),
                                                              [&](const Target& one) { return one.name == words[0]; });
  if (target == std::end(targets)) {
    static_cast<void>(std::fputs("fuzz_replay TARGET FOLDER LONGEST\n", stderr));
    return EXIT_FAILURE;
  }
  const std::size_t longest = std::stoul(words[2]);
  std::vector<std::filesystem::path> corpus{std::filesystem::directory_iterator{words[1]}, {}};
  std::sort(corpus.begin(), corpus.end());
  if (corpus.empty()) {
    static_cast<void>(std::fprintf(stderr, "there is no input in %s\n", words[1].c_str()));
    return EXIT_FAILURE;
  }
  for (const std::filesystem::path& file : corpus) {
    const std::string input = bytes_of(file);
    std::mt19937 random{static_cast<std::mt19937::result_type>(input.size())};
    for (int i = 0; i <= damages; ++i) {
      std::printf("%s, damage %d\n", file.filename().string().c_str(), i);
      std::fflush(stdout);
      give(*target, i == 0 ? input : damaged(input, random), longest);
    }
  }
  return EXIT_SUCCESS;
}
