#include "platform/files/ProgramFolders.h"

#include "platform/files/Files.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace gp {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolderName = "Glimmerpane";
constexpr const char* kScratchName = "glimmerpane-";
constexpr const char* kDataFolder = "share/glimmerpane";
constexpr mode_t kOwnerOnly = 0700;
constexpr mode_t kOthers = 0077;

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string executableFolder() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path().native();
}

// Asks without writing: permissions, and whether the file system is mounted read-only.
bool isWritableFile(const std::string& path) { return FileExists(path) && access(path.c_str(), W_OK) == 0; }

fs::path firstAbsolute(const fs::path& first, const fs::path& home, const char* inHome) {
  if (first.is_absolute()) return first;
  return home.is_absolute() ? home / inHome : fs::path();
}

std::string settingsFolder(const std::string& executableFolder, const FolderVariables& variables) {
  if (isWritableFile(executableFolder + "/" + kSettingsFileName)) return executableFolder;
  const fs::path config = firstAbsolute(variables.configHome, variables.home, ".config");
  const std::string folder = config.empty() ? std::string() : makePrivateFolder((config / kFolderName).native());
  return folder.empty() ? executableFolder : folder;
}

std::string scratchFolder(const std::string& settings, const FolderVariables& variables) {
  const fs::path temporary = fs::path(variables.temporary).is_absolute() ? variables.temporary : "/tmp";
  const std::string folder = makePrivateFolder((temporary / (kScratchName + std::to_string(geteuid()))).native());
  return folder.empty() ? settings : folder;
}

}  // namespace

std::string ProgramFolders::dataFile(const std::string& name) const {
  const auto found =
      std::ranges::find_if(data, [&name](const std::string& folder) { return FileExists(folder + "/" + name); });
  return (found == data.end() ? data.front() : *found) + "/" + name;
}

ProgramFolders chooseProgramFolders(const std::string& executableFolder, const FolderVariables& variables) {
  ProgramFolders folders;
  folders.settings = settingsFolder(executableFolder, variables);
  folders.scratch = scratchFolder(folders.settings, variables);
  folders.data = {executableFolder, (fs::path(executableFolder).parent_path() / kDataFolder).native()};
  return folders;
}

ProgramFolders programFolders() {
  ProgramFolders folders = chooseProgramFolders(
      executableFolder(),
      {.home = variable("HOME"), .configHome = variable("XDG_CONFIG_HOME"), .temporary = variable("TMPDIR")});
  folders.state = stateFolder();
  return folders;
}

std::string stateFolder() {
  const fs::path state = firstAbsolute(variable("XDG_STATE_HOME"), variable("HOME"), ".local/state");
  return state.empty() ? std::string() : makePrivateFolder((state / kFolderName).native());
}

std::string makePrivateFolder(const std::string& path) {
  std::error_code error;
  fs::create_directories(fs::path(path).parent_path(), error);
  struct stat status;
  const bool isThere = mkdir(path.c_str(), kOwnerOnly) == 0 || errno == EEXIST;
  const bool isOwn =
      isThere && lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid();
  if (!isOwn) return {};
  return (status.st_mode & kOthers) == 0 || chmod(path.c_str(), kOwnerOnly) == 0 ? path : std::string();
}

}  // namespace gp
