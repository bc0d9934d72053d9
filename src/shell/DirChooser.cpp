#include "shell/DirChooser.h"

#include "platform/files/Files.h"
#include "platform/text/Utf8.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace gp {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kAllFiles = "*.*";
constexpr const char* kRoot = "/";
constexpr const char* kMountFolders[] = {"/media", "/mnt", "/run/media"};

std::string currentDirectory() {
  std::error_code error;
  const fs::path path = fs::current_path(error);
  return error ? kRoot : path.native();
}

// Returns the absolute path without "." and ".." and without a trailing separator.
std::string cleanPath(const std::string& folder) {
  std::error_code error;
  const fs::path path = fs::absolute(folder, error).lexically_normal();
  return path.has_filename() || !path.has_relative_path() ? path.native() : path.parent_path().native();
}

bool canBeListed(const std::string& folder) {
  std::error_code error;
  const fs::directory_iterator entries(folder, error);
  return !error;
}

void addFolders(std::vector<std::string>& drives, const std::string& parent) {
  for (const std::string& name : foldersInFolder(parent)) drives.push_back(parent + "/" + name);
}

}  // namespace

DirChooser::DirChooser(std::string pattern, const std::string& startFolder) : pattern_(std::move(pattern)) {
  if (startFolder.empty() || !changeFolder(startFolder)) {
    folder_ = currentDirectory();
    refresh();
  }
}

bool DirChooser::changeFolder(const std::string& folder) {
  const std::string path = cleanPath(folder);
  std::error_code error;
  if (folder.empty() || !canBeListed(path)) return false;
  fs::current_path(path, error);
  if (error) return false;
  folder_ = path;
  refresh();
  return true;
}

void DirChooser::setPattern(const std::string& pattern) {
  pattern_ = pattern;
  refresh();
}

void DirChooser::refresh() { files_ = filesInFolder(folder_, pattern_); }

std::vector<FolderRow> DirChooser::folderRows() const {
  std::vector<FolderRow> rows;
  fs::path path;
  for (const fs::path& part : fs::path(folder_)) {
    path /= part;
    rows.push_back({part.native(), path.native(), static_cast<int>(rows.size()), true});
  }
  const int depth = static_cast<int>(rows.size());
  for (const std::string& name : foldersInFolder(folder_)) rows.push_back({name, (path / name).native(), depth, false});
  return rows;
}

std::vector<std::string> DirChooser::drives() const {
  std::vector<std::string> drives{kRoot};
  const char* home = std::getenv("HOME");
  if (home && directoryExists(home) && std::string_view(home) != kRoot) drives.emplace_back(home);
  for (const char* parent : kMountFolders) addFolders(drives, parent);
  return drives;
}

std::string DirChooser::drive() const {
  std::string nearest = kRoot;
  for (const std::string& drive : drives()) {
    const bool isInside = folder_ == drive || folder_.starts_with(drive + "/");
    if (isInside && drive.size() > nearest.size()) nearest = drive;
  }
  return nearest;
}

std::string DirChooser::parentFolder() const { return fs::path(folder_).parent_path().native(); }

bool DirChooser::showsAllFiles() const { return pattern_ == kAllFiles; }

std::string DirChooser::extension() const { return upperCase(pattern_.substr(pattern_.rfind('.') + 1)); }

std::string DirChooser::filesInDirText() const {
  const std::string count = std::to_string(files_.size());
  if (showsAllFiles()) return "Files in dir:" + count;
  return pattern_.size() > kAllFiles.size() ? extension() + " files in dir:  " + count : std::string();
}

std::string DirChooser::noFilesQuestion() const {
  const std::string what = showsAllFiles() ? "any file" : extension() + " files";
  return "There is no " + what + " directly in selected folder.\nProceed still?";
}

bool DirChooser::accept(MessageBoxes& boxes) const { return !files_.empty() || boxes.ask(noFilesQuestion()); }

}  // namespace gp
