// The commands that make and save icons: New Icon, Save, Save As, Save As Bitmap, Save Mask, and the question whether
// to save what is about to be replaced. A failed or cancelled save leaves the icon modified.
#pragma once

#include "files/FilesContext.h"
#include "files/cursor/CursorFiles.h"

#include <string>

namespace gp {

// What Save As writes; the values number the filters.
enum class SaveMode { Icon = 1, Cursor = 2, Bitmap = 3, Mask = 4 };

class IconSaver {
 public:
  // Both must outlive it.
  IconSaver(const FilesContext& context, CursorFiles& cursors);

  // A new, transparent icon of that size. Unsaved work is asked for first.
  void doNewIcon(int size);
  // Saves to the icon's own file where it has one for itself, otherwise under a name that is asked for.
  void doFileSave();
  // Shows the cursor panel, whose Proceed saves as a cursor.
  void saveAsCursor();
  // The same as doSaveAs for a bitmap, after a question.
  void saveAsBitmap();
  // Asks for a name and saves. A cursor takes its hot spot from the Panel's lists and leaves the record as it is.
  void doSaveAs(SaveMode mode);
  // Writes the Current Icon and brings the record up to date. Tells a failure.
  void doSaveIconTo(const std::string& path, bool& ok);
  // Offers to save the Current Icon; `message` may be empty. `proceed` is false after Cancel and after a failed save.
  void AskSaveCurrent(const std::string& message, bool& proceed);
  // Writes a Surface as a bitmap file. Tells a failure.
  void SaveBitmap(const Surface& surface, const std::string& path, bool& ok);

  // The name that Save As offers, without extension.
  std::string proposedName(SaveMode mode) const;
  bool mSaveFailed() const { return mSaveFailed_; }
  const std::string& lastSavedFile() const { return lastSavedFile_; }

 private:
  struct SaveKind;
  static const SaveKind& kindOf(SaveMode mode);

  bool endsAniSession(int size);
  void showNewIcon(int size);
  void closeSidePanels();
  void remindOfMultiIconFile();
  std::string askForName(const SaveKind& kind);
  void saveCursorTo(const std::string& path, bool& ok);
  void saveBitmapTo(const std::string& path, bool& ok);
  void saveMaskTo(const std::string& path, bool& ok);

  FilesContext context_;
  EditState& state_;
  CursorFiles& cursors_;
  std::string lastSavedFile_;
  bool mSaveFailed_ = false;  // the last save was cancelled or failed
};

}  // namespace gp
