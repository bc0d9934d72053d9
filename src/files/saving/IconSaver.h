// The commands that create and save icons: New Icon, Save, Save As, Save As Bitmap, Save Mask, and the question whether
// to save an icon before it is replaced. After a failed or cancelled save the icon stays modified.
#pragma once

#include "files/FilesContext.h"
#include "files/cursor/CursorFiles.h"
#include "platform/files/FileVersion.h"

#include <string>

namespace gp {

// The kinds of files that Save As writes; the values number the filters.
enum class SaveMode { Icon = 1, Cursor = 2, Bitmap = 3, Mask = 4 };

struct IconContainerRec;
struct IconImage;

class IconSaver {
 public:
  // Both must outlive it.
  IconSaver(const FilesContext& context, CursorFiles& cursors);

  // Creates a transparent icon of that size. Asks first about unsaved work.
  void doNewIcon(int size);
  // Saves to the icon's file if the file contains only this icon; otherwise asks for a name, after a message if the
  // file has changed since the icon was loaded. A copy from another container asks before its first save.
  void doFileSave();
  // Opens the cursor panel, whose Proceed button saves as a cursor.
  void saveAsCursor();
  // Asks about the background colour and then saves as doSaveAs does.
  void saveAsBitmap();
  // Asks for a name and saves. A cursor gets the hot spot of the Panel's lists, and the record is not changed.
  void doSaveAs(SaveMode mode);
  // Writes the Current Icon and updates its record. Reports a failure.
  void doSaveIconTo(const std::string& path, bool& ok);
  // Writes `icon`, as `record` describes it, and only then makes it the pixels and the record of the Current Icon; Undo
  // starts again when a pixel has changed. Asks before it writes over the file with several icons that the Current Icon
  // came from, or over the file of another container. Returns false after a No and after a failure, which is reported;
  // the Current Icon is as before then. The icon must have the size of the Current Icon, and alpha values if the record
  // states alpha.
  bool saveReplacement(const IconImage& icon, const IconContainerRec& record, const std::string& path);
  // Closes an open side panel and the frame of an animated cursor.
  void closeSidePanels();
  // Offers to save the Current Icon; `message` may be empty. `proceed` is false after Cancel and after a failed save.
  void AskSaveCurrent(const std::string& message, bool& proceed);
  // Writes a Surface as a bitmap file. Reports a failure.
  void SaveBitmap(const Surface& surface, const std::string& path, bool& ok);

  // The name that Save As proposes, without extension.
  std::string proposedName(SaveMode mode) const;
  bool mSaveFailed() const { return mSaveFailed_; }
  const std::string& lastSavedFile() const { return lastSavedFile_; }

 private:
  struct SaveKind;
  static const SaveKind& kindOf(SaveMode mode);

  void showNewIcon(int size);
  void remindOfMultiIconFile();
  bool mayReplaceFile(const std::string& path);
  bool writeReplacement(const IconImage& icon, const IconContainerRec& record, const std::string& path);
  bool findVersionToReplace(const std::string& path, std::optional<FileVersion>& read);
  bool saveOver(const std::string& path);
  std::string askForName(const SaveKind& kind, const std::string& folder);
  // An empty folder means that of the last dialog.
  void saveAs(SaveMode mode, const std::string& folder);
  // When `read` is given, the file must still be that version.
  void saveIconTo(const std::string& path, const std::optional<FileVersion>& read, bool& ok);
  bool write(const IconImage& icon, const IconContainerRec& record, const std::string& path,
             const std::optional<FileVersion>& read);
  void showSaved(const std::string& path);
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
