// Saving an icon in place of the Current Icon, which it becomes when it is written.
#include "document/Announcements.h"
#include "document/CurrentIcon.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "files/FileQuestions.h"
#include "files/format/Rereading.h"
#include "files/opening/IconMessages.h"
#include "files/saving/HeldFiles.h"
#include "files/saving/IconSaver.h"
#include "files/saving/MultiIconSaving.h"
#include "files/saving/MultiIconTexts.h"
#include "files/saving/PanelFiles.h"
#include "platform/files/Files.h"
#include "platform/text/Utf8.h"

namespace gp {
namespace {

constexpr const char* kProceedQuestion = "\n\nProceed?";

}  // namespace

// Another icon, or none, can be the Current Icon after a question.
bool IconSaver::saveReplacement(const IconImage& icon, const IconContainerRec& record, const std::string& path) {
  const unsigned serial = state_.iconSerial;
  if (!mayReplaceFile(path) || state_.iconSerial != serial) return false;
  if (!writeReplacement(icon, record, path)) return false;
  const bool hasChanged = replacePixels(state_, icon);
  // Before events are processed: a switch to another container stores nothing of a saved icon.
  context_.document.editingArea.UpdatePanelFromCurrent();
  if (hasChanged) {
    context_.document.editingArea.showChangedIcon();
    context_.editor.clearUndoHistory();
    context_.editor.recordUndo();
  }
  // Recording has processed events, which may have brought up another icon: that one is not saved.
  if (state_.iconSerial == serial)
    showSaved(path);
  else
    context_.editor.AddHistory(path);
  context_.display.announce(news::kSaved);
  return true;
}

bool IconSaver::writeReplacement(const IconImage& icon, const IconContainerRec& record, const std::string& path) {
  const auto lock = lockToUpdate(context_, path);
  std::optional<FileVersion> read;
  return lock && findVersionToReplace(path, read) && write(icon, record, path, read);
}

bool IconSaver::mayReplaceFile(const std::string& path) {
  const IconContainerRec& record = state_.current();
  const bool hasMoreIcons = record.fromMultiIconFile && isFileOf(record, path);
  if (hasMoreIcons && !context_.boxes.ask(std::string(kMultiIconReminder) + kProceedQuestion)) return false;
  return mayWriteOver(context_, path, Saved::CurrentIcon);
}

// The file of the Current Icon alone must still contain one icon. Returns false, after a message, when another program
// has put more icons into it, or something else. Any other file is replaced as it is.
bool IconSaver::findVersionToReplace(const std::string& path, std::optional<FileVersion>& read) {
  const IconContainerRec& record = state_.current();
  if (record.fromMultiIconFile || !endsWithAnyCase(path, kIconEnding) || !isFileOf(record, path) || !FileExists(path))
    return true;
  read = findFileOfOneIcon(path);
  if (!read) context_.boxes.tell(fileChangedText(path));
  return read.has_value();
}

}  // namespace gp
