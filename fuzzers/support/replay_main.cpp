// SPDX-License-Identifier: MIT
//
// Runs a fuzz target without a fuzzer: on every file of the directories named, and on the prefixes
// of each, so that inputs that end in the middle of a call are among them. Any compiler will do.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr std::size_t kPrefixes = 8;

void Replay(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> text(std::istreambuf_iterator<char>(file), {});
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  std::fprintf(stderr, "%s\n", path.c_str());  // the last line tells which input broke
  for (std::size_t part = 0; part <= kPrefixes; ++part) {
    LLVMFuzzerTestOneInput(bytes, text.size() * part / kPrefixes);
  }
}

}  // namespace

int main(int argc, char** argv) {
  LLVMFuzzerInitialize(&argc, &argv);
  std::size_t count = 0;
  for (int i = 1; i < argc; ++i) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
      paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    std::for_each(paths.begin(), paths.end(), Replay);
    count += paths.size();
  }
  std::fprintf(stderr, "%zu inputs replayed\n", count);
  return count > 0 ? 0 : 1;
}
