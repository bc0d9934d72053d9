#include "extraction/SourceTable.h"

#include "document/EditState.h"
#include "extraction/format/IconHandle.h"
#include "extraction/sources/AniSource.h"
#include "extraction/sources/DesktopSource.h"
#include "extraction/sources/FileTypeSource.h"
#include "extraction/sources/FolderSource.h"
#include "extraction/sources/LibrarySource.h"
#include "extraction/sources/ScanSource.h"
#include "files/FileQuestions.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/files/Files.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/text/Paths.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr const char* kLibraryFilter = "(*.dll)|*.dll|(*.*)|*.*|";
constexpr const char* kFirstLibrary = "/Shell32.dll";
constexpr const char* kFolderPattern = "*.ico";

OpenedList listFolder(const FilesContext&, const SourceRow& row, const std::string& path, FileTypeIcons&) {
  return {&row, std::make_unique<FolderSource>(path), {}};
}

OpenedList listAni(const FilesContext&, const SourceRow& row, const std::string& path, FileTypeIcons&) {
  auto source = AniSource::open(path);
  if (!source) return {&row, nullptr, "Failed to read this animated cursor file"};
  return {&row, std::move(source), {}};
}

OpenedList listLibrary(const FilesContext&, const SourceRow& row, const std::string& path, FileTypeIcons&) {
  auto source = LibrarySource::open(path, row.source == ListSource::LargeIcons ? kLargeIcon : kSmallIcon);
  if (!source) return {&row, nullptr, path + "\nNo icon in this file"};
  return {&row, std::move(source), {}};
}

std::string counted(int icons) { return std::to_string(icons) + (icons == 1 ? " icon" : " icons"); }

// The scan does not find icons of other sizes, compressed ones, and those that share their bytes.
bool prefersLibrary(const FilesContext& context, const std::string& path, int scanned, int listed) {
  return listed > scanned &&
         context.boxes.ask(path + "\n\nThe scan finds " + counted(scanned) + " in this file, which is a library of " +
                               counted(listed) + ".\n\nList the large icons of the library instead?",
                           BoxAnswer::Yes);
}

OpenedList listIcl(const FilesContext& context, const SourceRow& row, const std::string& path, FileTypeIcons& icons) {
  auto source = std::make_unique<ScanSource>(path);
  if (prefersLibrary(context, path, source->count(), countLibraryIcons(path))) {
    constexpr int kLargeIconsCommand = 1;
    const SourceRow& library = *findSource(kLargeIconsCommand);
    return library.list(context, library, path, icons);
  }
  if (source->count() == 0) return {&row, nullptr, "No 16x16, 24x24, 32x32 or 48x48 icon found in this file"};
  return {&row, std::move(source), {}};
}

OpenedList listFileType(const FilesContext&, const SourceRow& row, const std::string& path, FileTypeIcons& icons) {
  return {&row, std::make_unique<FileTypeSource>(path, icons), {}};
}

OpenedList listDesktop(const FilesContext&, const SourceRow& row, const std::string& path, FileTypeIcons& icons) {
  if (path.empty()) return {&row, nullptr, "No desktop shortcut icon files found"};
  auto source = std::make_unique<DesktopSource>(path, icons);
  if (source->count() == 0) return {&row, nullptr, "No icons found"};
  return {&row, std::move(source), {}};
}

// clang-format off
constexpr std::array<SourceRow, 7> kSources{{
    {kFolderCommand, ListSource::Folder, "Display All Icons In Folder", "Icons In Folder", nullptr, false, listFolder},
    {0, ListSource::AniFrames, "Extract From ANI", "Extract Icons In ANI File", "(*.ani)|*.ani|", false, listAni},
    {1, ListSource::LargeIcons, "Extract Large Icons From DLL or Similar Resource", "Extract DLL-Large", kLibraryFilter, true, listLibrary},
    {2, ListSource::SmallIcons, "Extract Small Icons From DLL or Similar Resource", "Extract DLL-Small", kLibraryFilter, true, listLibrary},
    {3, ListSource::IclScan, "Extract From ICL", "Extract Icons From ICL File", "(*.icl)|*.icl|", false, listIcl},
    {4, ListSource::FileType, "Extract Icons Associated With Any File Type", "Icons Associated With File", "(*.exe)|*.exe|(*.*)|*.*|", false, listFileType},
    {5, ListSource::Desktop, "Extract Desktop Icons", "Desktop Icons", nullptr, false, listDesktop},
}};
// clang-format on

void remember(ProcessValues& process, const std::string& path) {
  const std::string folder = ParseFileName(path, PathPart::DriveAndFolder);
  if (!folder.empty()) process.mLastFolder = folder;
}

std::string askForFolder(FilesContext& context) {
  std::string folder = context.dialog.chooseFolder(kFolderPattern, context.process.mLastFolder);
  if (!folder.empty()) context.process.mLastFolder = isSeparator(folder.back()) ? folder : folder + "/";
  return folder;
}

std::string askForLibrary(FilesContext& context, const SourceRow& row) {
  const std::string library = context.process.gSystemDir + kFirstLibrary;
  if (!row.startsWithLibrary || !FileExists(library)) return askToOpen(context, row.filter);
  OpenOptions options;
  options.fileName = library;
  options.filter = row.filter;
  options.initialFolder = context.process.gSystemDir;
  std::string path = context.dialog.ShowOpen(options);
  remember(context.process, path);
  return path;
}

}  // namespace

const SourceRow* findSource(int menuIndex) {
  const auto* const row = std::ranges::find(kSources, menuIndex, &SourceRow::menuIndex);
  return row == kSources.end() ? nullptr : row;
}

std::string askForSource(FilesContext& context, const SourceRow& row) {
  if (row.source == ListSource::Folder) return askForFolder(context);
  return askForLibrary(context, row);
}

}  // namespace gp
