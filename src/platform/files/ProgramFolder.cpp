#include "platform/files/Files.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace gp {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolderName = "Glimmerpane";
constexpr const char* kProbeName = ".glimmerpane-probe";

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string executableFolder() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path().native();
}

// Creates a probe file: permissions do not show that a file system is mounted read-only.
bool canWriteIn(const fs::path& folder) {
  std::error_code error;
  if (!fs::is_directory(folder, error)) return false;
  const fs::path probe = folder / kProbeName;
  const bool made = std::ofstream(probe).is_open();
  fs::remove(probe, error);
  return made;
}

// Relative folders in these variables are ignored.
fs::path configFolder(const fs::path& configHome, const fs::path& home) {
  if (configHome.is_absolute()) return configHome;
  return home.is_absolute() ? home / ".config" : fs::path();
}

}  // namespace

std::string chooseProgramFolder(const std::string& executableFolder, const std::string& configHome,
                                const std::string& home) {
  const fs::path config = configFolder(configHome, home);
  if (config.empty() || canWriteIn(executableFolder)) return executableFolder;
  const fs::path folder = config / kFolderName;
  std::error_code error;
  fs::create_directories(folder, error);
  return folder.native();
}

std::string programFolder() {
  static const std::string folder =
      chooseProgramFolder(executableFolder(), variable("XDG_CONFIG_HOME"), variable("HOME"));
  return folder;
}

}  // namespace gp
