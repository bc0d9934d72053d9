// A folder, and files in it, that exist for the lifetime of a test.
#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace gp::test {

// Restores the current directory of the process at the end.
class KeptDirectory {
 public:
  KeptDirectory() = default;
  ~KeptDirectory() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
  }
  KeptDirectory(const KeptDirectory&) = delete;
  KeptDirectory& operator=(const KeptDirectory&) = delete;
  const std::filesystem::path& before() const { return before_; }

 private:
  const std::filesystem::path before_ = std::filesystem::current_path();
};

class TempFolder {
 public:
  TempFolder() : path_(std::filesystem::temp_directory_path() / uniqueName()) {
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string path() const { return path_.native(); }
  // The path of a name in the folder, whether the file exists or not.
  std::string file(std::string_view name) const { return path_.native() + "/" + std::string(name); }
  // Writes a file and returns its path.
  std::string write(std::string_view name, std::string_view content = "x") const {
    std::ofstream(file(name), std::ios::binary) << content;
    return file(name);
  }
  std::string read(std::string_view name) const {
    std::ifstream stream(file(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  std::string makeFolder(std::string_view name) const {
    std::filesystem::create_directories(file(name));
    return file(name);
  }

 private:
  static std::string uniqueName() {
    static std::atomic<int> count{0};
    return "glimmerpane-test-" + std::to_string(std::random_device{}()) + "-" + std::to_string(++count);
  }

  std::filesystem::path path_;
};

}  // namespace gp::test
