#include "files/IconSaver.h"

#include "document/Containers.h"
#include "document/Hourglass.h"
#include "document/Messages.h"
#include "files/BitmapSaving.h"
#include "files/FileQuestions.h"
#include "files/IconMessages.h"
#include "files/IconWriter.h"
#include "platform/files/Files.h"
#include "platform/text/Paths.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr const char* kIconEnding = ".ico";
constexpr int kAniSize = 32;
constexpr int kPaintTool = 4;
constexpr std::size_t kDiscrepancyPanel = static_cast<std::size_t>(StatusPanel::Discrepancy);

constexpr const char* kCursorSizeOnly = "For cursor of 32x32 only";
constexpr const char* kBitmapQuestion = "Background color used will be the currently selected color.\nOK?\n";
constexpr const char* kSaveQuestion = "Save current icon to file?";
constexpr const char* kAniQuestion =
    "Animated cursor session for 32x32 icons only\nTerminate animated cursor session?\n";
constexpr const char* kCursorNotSaved = "Failed to save curosr";
constexpr const char* kFileNotSaved = "Failed to save this file.";
constexpr const char* kMultiIconReminder =
    "Reminder:  The original icon file contains multiple icons.\n\n"
    " If you don't wish to overwrite it, save to a different name.";

struct NewIconSize {
  int index;  // of mnuFileSub
  int size;
};
constexpr std::array<NewIconSize, 4> kNewIconSizes{{{2, 32}, {3, 16}, {4, 48}, {5, 24}}};

const NewIconSize* findNewIconSize(int index) {
  const auto found = std::ranges::find(kNewIconSizes, index, &NewIconSize::index);
  return found == kNewIconSizes.end() ? nullptr : &*found;
}

std::string colorsInName(const IconContainerRec& record) {
  return record.isTrueColor() ? std::to_string(record.bitCount) + "bpp" : std::to_string(record.dirColors);
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

void IconSaver::mnuFileSub(int index) {
  struct Row {
    int index;
    void (IconSaver::*run)();
  };
  static constexpr std::array<Row, 5> kCommands{{{12, &IconSaver::saveCommand},
                                                 {13, &IconSaver::saveAsIconCommand},
                                                 {18, &IconSaver::saveAsCursorCommand},
                                                 {19, &IconSaver::saveAsBitmapCommand},
                                                 {20, &IconSaver::saveMaskCommand}}};
  if (findNewIconSize(index)) return doNewIcon(index);
  const auto command = std::ranges::find(kCommands, index, &Row::index);
  if (command == kCommands.end()) return;
  context_.editor.CommitPendingPaint();
  if (hasIcon()) (this->*command->run)();
}

bool IconSaver::hasIcon() {
  if (!state_.current().present) tellNoIconYet(context_.boxes);
  return state_.current().present;
}

void IconSaver::saveCommand() { doFileSave(); }
void IconSaver::saveAsIconCommand() { doSaveAs(SaveMode::Icon); }
void IconSaver::saveMaskCommand() { doSaveAs(SaveMode::Mask); }

void IconSaver::saveAsCursorCommand() {
  if (hasCursorSize()) cursors_.openPanel();
}

bool IconSaver::hasCursorSize() {
  if (state_.current().size == kCursorSide) return true;
  context_.boxes.tell(kCursorSizeOnly);
  return false;
}

void IconSaver::saveAsBitmapCommand() {
  if (context_.boxes.ask(kBitmapQuestion)) doSaveAs(SaveMode::Bitmap);
}

// New Icon.

void IconSaver::doNewIcon(int index) {
  const NewIconSize* row = findNewIconSize(index);
  if (!row) return;
  context_.editor.CommitPendingPaint();
  if (!endsAniSession(row->size)) return;
  bool proceed = true;
  if (state_.IsIconChanged()) AskSaveCurrent("", proceed);
  if (proceed) showNewIcon(row->size);
}

// The frames of an animated cursor are of one size; a new icon of another ends the session. False on a refusal.
bool IconSaver::endsAniSession(int size) {
  if (!state_.screen.aniContainerVisible) {
    context_.editor.closePanels();
    return true;
  }
  if (size == kAniSize) return true;
  if (!context_.boxes.ask(kAniQuestion)) return false;
  closeSidePanels();
  return true;
}

void IconSaver::showNewIcon(int size) {
  Editor& editor = context_.editor;
  editor.clearRegion();
  NewRecord(state_);
  PrepareAlphaRec(state_);
  state_.current().size = static_cast<std::int16_t>(size);
  editor.SizePanelSurfaces(size);
  editor.SizeEditSurfaces(size);
  state_.picImage.fill(kBlack);
  state_.picImage.makePersistent();
  state_.picMask.fill(kWhite);
  state_.picMask.makePersistent();
  editor.UpdatePanelFromCurrent();
  editor.ComposeCurrentIcon();
  editor.ShowCurrentIcon();
  editor.clearUndoHistory();
  editor.recordUndo();
  editor.showChart16();
  editor.selectTool(kPaintTool);
}

void IconSaver::closeSidePanels() {
  context_.editor.closePanels();
  if (!state_.screen.aniContainerVisible) return;
  state_.screen.aniContainerVisible = false;
  context_.display.changed(DisplayPart::Panel);
}

// Saving.

void IconSaver::AskSaveCurrent(const std::string& message, bool& proceed) {
  state_.mSaveFailed = false;
  const std::string text = message.empty() ? kSaveQuestion : kSaveQuestion + ("\n\n" + message) + "\n";
  const BoxAnswer answer = context_.boxes.show(text, BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes);
  if (answer == BoxAnswer::Yes) mnuFileSub(12);
  proceed = answer == BoxAnswer::No || (answer == BoxAnswer::Yes && !state_.mSaveFailed);
}

void IconSaver::doFileSave() {
  const IconContainerRec& record = state_.current();
  const std::string path = record.path.trimmed();
  if (record.fromMultiIconFile || !endsWithAnyCase(path, kIconEnding) || !FileExists(path))
    return doSaveAs(SaveMode::Icon);
  bool ok = false;
  doSaveIconTo(path, ok);
}

void IconSaver::doSaveIconTo(const std::string& path, bool& ok) {
  ok = writeCurrentIcon(state_, path);
  if (!ok) {
    state_.mSaveFailed = true;
    tellIconNotSaved(context_.boxes, path);
    return;
  }
  describeSavedIcon(state_, path);
  state_.screen.lblStatusPanel[kDiscrepancyPanel].clear();
  context_.display.changed(DisplayPart::StatusBar);
  context_.editor.UpdatePanelFromCurrent();
  context_.editor.RefreshStatusBar();
  context_.editor.AddHistory(path);
}

void IconSaver::doSaveAs(SaveMode mode) {
  const SaveKind& kind = kindOf(mode);
  // The Panel stays up when another icon is opened.
  if (mode == SaveMode::Cursor && !(hasIcon() && hasCursorSize())) return;
  closeSidePanels();
  context_.editor.EndToolAction();
  context_.editor.clearRegion();
  if (mode == SaveMode::Icon) remindOfMultiIconFile();
  const std::string path = askForName(kind);
  if (path.empty()) {
    state_.mSaveFailed = true;
    return;
  }
  lastSavedFile_ = path;
  bool ok = false;
  (this->*kind.save)(path, ok);
  if (!ok)
    state_.mSaveFailed = true;
  else if (mode == SaveMode::Icon)
    state_.current().modified = false;
}

void IconSaver::remindOfMultiIconFile() {
  if (state_.current().fromMultiIconFile) context_.boxes.tell(kMultiIconReminder, BoxIcon::Information);
}

std::string IconSaver::proposedName(SaveMode mode) const {
  const IconContainerRec& record = state_.current();
  std::string name = record.path.trimmed();
  if (name.find('.') != std::string::npos) name = ParseFileName(name, PathPart::BareName);
  if (mode == SaveMode::Mask) return name + "_Mask";
  if (record.fromMultiIconFile) name += "_" + std::to_string(record.size) + "_" + colorsInName(record);
  return name;
}

std::string IconSaver::askForName(const SaveKind& kind) {
  return askToSave(context_, proposedName(kind.mode), kind.filter, kind.extension);
}

// The icon that is on the Editing Area does not become that cursor.
void IconSaver::saveCursorTo(const std::string& path, bool& ok) {
  cursors_.WriteCursorFile(path, ok);
  if (!ok) return context_.boxes.tell(HasFileAttribute(path) ? kReadOnlyFile : kCursorNotSaved, BoxIcon::Exclamation);
  context_.editor.UpdatePanelFromCurrent();
  context_.editor.RefreshStatusBar();
}

// Bitmaps.

void IconSaver::saveBitmapTo(const std::string& path, bool& ok) {
  // Transparent pixels take the current colour.
  SaveBitmap(composedForBitmap(state_, state_.mCurrentColor), path, ok);
  context_.editor.UpdatePanelFromCurrent();
}

void IconSaver::saveMaskTo(const std::string& path, bool& ok) {
  state_.picMask.makePersistent();
  SaveBitmap(state_.picMask, path, ok);
}

void IconSaver::SaveBitmap(const Surface& surface, const std::string& path, bool& ok) {
  {
    const Hourglass hourglass(state_, context_.display);
    ok = saveByColors(surface, path);
  }
  if (!ok) context_.boxes.tell(kFileNotSaved, BoxIcon::Exclamation);
}

}  // namespace gp
