// Commands of the browser that save single entries.
#include "document/Announcements.h"
#include "document/Display.h"
#include "document/Hourglass.h"
#include "document/ProcessValues.h"
#include "files/FileQuestions.h"
#include "files/browser/MultiIconBrowser.h"
#include "files/format/DepthTexts.h"
#include "files/format/SingleEntryFile.h"
#include "files/opening/IconMessages.h"
#include "files/saving/HeldFiles.h"
#include "platform/dialogs/StartFolder.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/files/Files.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/text/Paths.h"

#include <algorithm>
#include <iterator>

namespace gp {
namespace {

constexpr const char* kFolderPattern = "*.*";

std::string joined(const std::string& folder, const std::string& name) {
  return !folder.empty() && isSeparator(folder.back()) ? folder + name : folder + "/" + name;
}

}  // namespace

// For example "tools_32_16.ico" if `stem` is "tools".
std::string MultiIconBrowser::singleFileName(const std::string& stem, int item) const {
  const ItemReading reading = readItem(iconText(item));
  const ListedEntry& entry = listed(reading);
  return stem + "_" + std::to_string(reading.height) + "_" + colorsInFileName(entry.directory) + "." + kIconExtension;
}

bool MultiIconBrowser::saveItem(int item, const std::string& path) {
  const Hourglass hourglass(context_);
  return saveEntryToSingleFile(arrays_, readItem(iconText(item)).index, path);
}

void MultiIconBrowser::cmdSaveSingle() {
  if (!isIcon(selected_)) return;
  const std::string proposed = singleFileName(ParseFileName(file(), PathPart::BareName), selected_);
  const std::string path = askToSave(context_, proposed, kIconFilter, kIconExtension);
  if (path.empty() || !mayWriteOver(context_, path, Saved::Other)) return;
  const bool isOwnFile = isSameFile(path, file());
  if (saveItem(selected_, path))
    context_.display.announce(news::kSaved);
  else
    tellIconNotSaved(context_.boxes, path);
  // The list must match the file that a later command rewrites.
  if (isOwnFile || path == file()) openFile();
}

void MultiIconBrowser::cmdSplitSave() {
  if (!isIcon(selected_)) return;
  const std::string folder =
      context_.dialog.chooseFolder(kFolderPattern, existingStartFolder(context_.boxes, context_.process.mLastFolder));
  if (folder.empty()) return;
  const std::string stem = joined(folder, ParseFileName(file(), PathPart::BareName));
  const std::string question = "Single-icon files will be saved as " + stem + "_(Size)_(Color), ...\nTotally " +
                               std::to_string(icons_.size()) + " items on list.\n\nProceed?";
  if (!context_.boxes.ask(question)) return;
  const std::vector<ItemAndPath> files = splitFiles(stem);
  std::vector<std::string> paths;
  std::ranges::transform(files, std::back_inserter(paths), &ItemAndPath::second);
  if (!mayWriteOver(context_, paths, Saved::Other)) return;
  splitTo(files);
  tellNotSplit();
}

// Without the items whose Refs read as those of other entries.
std::vector<MultiIconBrowser::ItemAndPath> MultiIconBrowser::splitFiles(const std::string& stem) const {
  std::vector<ItemAndPath> files;
  for (int item = 0; isIcon(item); ++item)
    if (readItem(iconText(item)).isOfItsEntry()) files.emplace_back(item, singleFileName(stem, item));
  return files;
}

// Images that cannot be shown are saved too. Failures to write are not reported. The views rebuild their lists on each
// notification, so there is one notification at the end.
void MultiIconBrowser::splitTo(const std::vector<ItemAndPath>& files) {
  const Hourglass hourglass(context_);
  const int before = selected_;
  for (const auto& [item, path] : files) {
    if (preview(iconText(item), preview_)) selected_ = item;
    static_cast<void>(saveItem(item, path));
  }
  if (preview(iconText(before), preview_)) selected_ = before;
  changed();
}

// The items of a list whose Refs read as those of other entries are its last ones.
void MultiIconBrowser::tellNotSplit() {
  const auto first =
      std::ranges::find_if(icons_, [](const std::string& item) { return !readItem(item).isOfItsEntry(); });
  if (first == icons_.end()) return;
  const std::string ref = std::to_string(readItem(*first).ref), last = std::to_string(readItem(icons_.back()).ref);
  tellNotShown(ref == last ? ref : ref + " to " + last);
}

}  // namespace gp
