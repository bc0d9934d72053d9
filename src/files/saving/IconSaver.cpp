#include "files/saving/IconSaver.h"

#include "document/Announcements.h"
#include "document/Containers.h"
#include "document/CurrentIcon.h"
#include "document/CurrentIconGuard.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "document/PanelNumbers.h"
#include "drawing/Drawing.h"
#include "files/FileQuestions.h"
#include "files/format/DepthTexts.h"
#include "files/format/IconWriter.h"
#include "files/format/Rereading.h"
#include "files/opening/IconMessages.h"
#include "files/saving/BitmapSaving.h"
#include "files/saving/HeldFiles.h"
#include "files/saving/MultiIconSaving.h"
#include "files/saving/MultiIconTexts.h"
#include "platform/files/Files.h"
#include "platform/text/Paths.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr int kAniSize = 32;
constexpr std::size_t kDiscrepancyPanel = static_cast<std::size_t>(StatusPanel::Discrepancy);

constexpr const char* kBitmapQuestion = "Background color used will be the currently selected color.\nOK?\n";
constexpr const char* kSaveQuestion = "Save current icon to file?";
constexpr const char* kAniQuestion =
    "Animated cursor session for 32x32 icons only\nTerminate animated cursor session?\n";
constexpr const char* kCursorNotSaved = "Failed to save curosr";
constexpr const char* kFileNotSaved = "Failed to save this file.";

// Empty when the folder exists, or the path states none.
std::string missingFolderOf(const std::string& path) {
  const std::string folder = ParseFileName(path, PathPart::DriveAndFolder);
  return directoryExists(folder) ? std::string() : folder;
}

}  // namespace

struct IconSaver::SaveKind {
  SaveMode mode;
  const char* filter;
  const char* extension;
  void (IconSaver::*save)(const std::string& path, bool& ok);
};

const IconSaver::SaveKind& IconSaver::kindOf(SaveMode mode) {
  static constexpr const char* kBitmapFilter = "Bitmap files (*.bmp)|*.bmp|(*.*)|*.*|";
  static constexpr std::array<SaveKind, 4> kKinds{{
      {SaveMode::Icon, kIconFilter, kIconExtension, &IconSaver::doSaveIconTo},
      {SaveMode::Cursor, "cursor files (*.cur)|*.cur|", "cur", &IconSaver::saveCursorTo},
      {SaveMode::Bitmap, kBitmapFilter, "bmp", &IconSaver::saveBitmapTo},
      {SaveMode::Mask, kBitmapFilter, "bmp", &IconSaver::saveMaskTo},
  }};
  return *std::ranges::find(kKinds, mode, &SaveKind::mode);
}

IconSaver::IconSaver(const FilesContext& context, CursorFiles& cursors)
    : context_(context), state_(context.state), cursors_(cursors) {}

void IconSaver::saveAsCursor() { cursors_.openPanel(); }

void IconSaver::saveAsBitmap() {
  if (context_.boxes.ask(kBitmapQuestion)) doSaveAs(SaveMode::Bitmap);
}

// New Icon.

// All frames of an animated cursor have one size; a new icon of another size ends the session, after the last question.
void IconSaver::doNewIcon(int size) {
  const bool isAniSession = state_.screen.aniContainerVisible;
  const bool endsAniSession = isAniSession && size != kAniSize;
  if (!isAniSession) context_.editor.closePanels();
  if (endsAniSession && !context_.boxes.ask(kAniQuestion)) return;
  if (!mayCurrentIconGo(context_)) return;
  if (endsAniSession) {
    closeSidePanels();
    context_.editor.endAniSession();
  }
  showNewIcon(size);
}

void IconSaver::showNewIcon(int size) {
  context_.document.arrival.arrive(transparentIcon(size), NewRecord());
  context_.drawing.tools.selectTool(kPaint);
  context_.display.announce(news::newIcon(size));
}

void IconSaver::closeSidePanels() {
  context_.editor.closePanels();
  if (!state_.screen.aniContainerVisible) return;
  state_.screen.aniContainerVisible = false;
  context_.editor.aniPaneHidden();
  context_.display.changed(DisplayPart::Panel);
}

// Saving.

void IconSaver::AskSaveCurrent(const std::string& message, bool& proceed) {
  mSaveFailed_ = false;
  const std::string text = message.empty() ? kSaveQuestion : kSaveQuestion + ("\n\n" + message) + "\n";
  const BoxAnswer answer = context_.boxes.show(text, BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes);
  if (answer == BoxAnswer::Yes) {
    context_.document.iconsPanel.CommitPendingPaint();
    doFileSave();
  }
  proceed = answer == BoxAnswer::No || (answer == BoxAnswer::Yes && !mSaveFailed_);
}

void IconSaver::doFileSave() {
  const IconContainerRec& record = state_.current();
  const std::string path = record.path.trimmed();
  if (record.fromMultiIconFile || !endsWithAnyCase(path, kIconEnding) || !FileExists(path))
    return saveAs(SaveMode::Icon, missingFolderOf(path));
  if (record.neverSaved && !mayWriteOverOriginal(context_, path)) {
    mSaveFailed_ = true;
    return;
  }
  if (saveOver(path)) return;
  context_.boxes.tell(fileChangedText(path));
  doSaveAs(SaveMode::Icon);
}

// False when another program has put more icons into the file, or something else. Nothing is written then.
bool IconSaver::saveOver(const std::string& path) {
  const auto lock = lockToUpdate(context_, path);
  if (!lock) {
    mSaveFailed_ = true;
    return true;
  }
  const auto read = findFileOfOneIcon(path);
  bool ok = false;
  if (read) saveIconTo(path, read, ok);
  if (ok) context_.display.announce(news::kSaved);
  return read.has_value();
}

void IconSaver::doSaveIconTo(const std::string& path, bool& ok) { saveIconTo(path, std::nullopt, ok); }

void IconSaver::saveIconTo(const std::string& path, const std::optional<FileVersion>& read, bool& ok) {
  ok = write(currentIcon(state_), state_.current(), path, read);
  if (ok) showSaved(path);
}

// Writes an icon and gives the Current Icon the record of the saved one.
bool IconSaver::write(const IconImage& icon, const IconContainerRec& record, const std::string& path,
                      const std::optional<FileVersion>& read) {
  const ColorDepth depth = depthToWrite(icon, record);
  bool ok = false;
  WriteSingleIconFile(icon, depth, path, ok, read);
  if (!ok) {
    mSaveFailed_ = true;
    tellIconNotSaved(context_.boxes, path);
    return false;
  }
  state_.current() = recordOfSavedIcon(record, depth, path);
  return true;
}

void IconSaver::showSaved(const std::string& path) {
  state_.screen.lblStatusPanel[kDiscrepancyPanel].clear();
  context_.display.changed(DisplayPart::StatusBar);
  context_.document.editingArea.UpdatePanelFromCurrent();
  context_.document.editingArea.RefreshStatusBar();
  context_.editor.AddHistory(path);
}

void IconSaver::doSaveAs(SaveMode mode) { saveAs(mode, {}); }

void IconSaver::saveAs(SaveMode mode, const std::string& folder) {
  const SaveKind& kind = kindOf(mode);
  // Icons of the list are saved one after the other.
  if (state_.screen.mActivePanel != kIconsListPanel) closeSidePanels();
  context_.document.iconsPanel.EndToolAction();
  context_.drawing.regions.clearRegion();
  if (mode == SaveMode::Icon) remindOfMultiIconFile();
  const std::string path = askForName(kind, folder);
  if (path.empty() || !mayWriteOver(context_, path, Saved::CurrentIcon)) {
    mSaveFailed_ = true;
    return;
  }
  lastSavedFile_ = path;
  bool ok = false;
  (this->*kind.save)(path, ok);
  if (!ok) {
    mSaveFailed_ = true;
    return;
  }
  if (mode == SaveMode::Icon) state_.current().modified = false;
  context_.display.announce(news::kSaved);
}

void IconSaver::remindOfMultiIconFile() {
  if (state_.current().fromMultiIconFile) context_.boxes.tell(kMultiIconReminder, BoxIcon::Information);
}

std::string IconSaver::proposedName(SaveMode mode) const {
  const IconContainerRec& record = state_.current();
  std::string name = record.path.trimmed();
  if (name.find('.') != std::string::npos) name = ParseFileName(name, PathPart::BareName);
  if (mode == SaveMode::Mask) return name + "_Mask";
  if (record.fromMultiIconFile) name += "_" + std::to_string(record.size) + "_" + colorsInFileName(record.depth());
  return name;
}

std::string IconSaver::askForName(const SaveKind& kind, const std::string& folder) {
  return askToSave(context_, proposedName(kind.mode), kind.filter, kind.extension, OverwriteQuestion::ByDialog, folder);
}

// Saving as a cursor does not change the Current Icon's record.
void IconSaver::saveCursorTo(const std::string& path, bool& ok) {
  cursors_.WriteCursorFile(path, ok);
  if (!ok) return context_.boxes.tell(HasFileAttribute(path) ? kReadOnlyFile : kCursorNotSaved, BoxIcon::Exclamation);
  context_.document.editingArea.UpdatePanelFromCurrent();
  context_.document.editingArea.RefreshStatusBar();
}

// Bitmaps.

void IconSaver::saveBitmapTo(const std::string& path, bool& ok) {
  // Transparent pixels get the current colour.
  SaveBitmap(composedForBitmap(currentIcon(state_), state_.current(), state_.mCurrentColor), path, ok);
  context_.document.editingArea.UpdatePanelFromCurrent();
}

void IconSaver::saveMaskTo(const std::string& path, bool& ok) {
  state_.picMask.makePersistent();
  SaveBitmap(state_.picMask, path, ok);
}

void IconSaver::SaveBitmap(const Surface& surface, const std::string& path, bool& ok) {
  {
    const Hourglass hourglass(context_);
    ok = saveByColors(surface, path);
  }
  if (!ok) context_.boxes.tell(kFileNotSaved, BoxIcon::Exclamation);
}

}  // namespace gp
