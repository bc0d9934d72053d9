// Replaces the main function of libFuzzer: passes each file named on the command line, or found in a folder named
// there, to the target once.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::size_t replayFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
  std::printf("%s (%zu bytes)\n", path.c_str(), bytes.size());
  std::fflush(stdout);
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return 1;
}

std::size_t replay(const std::filesystem::path& path) {
  if (!std::filesystem::is_directory(path)) return replayFile(path);
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
    if (entry.is_regular_file()) files += replayFile(entry.path());
  }
  return files;
}

}  // namespace

int main(int argc, char** argv) {
  std::size_t files = 0;
  for (int i = 1; i < argc; ++i) files += replay(argv[i]);
  std::printf("%zu files replayed\n", files);
  return files > 0 ? 0 : 1;
}
