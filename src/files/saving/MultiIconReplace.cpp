#include "files/saving/MultiIconReplace.h"

#include "document/Announcements.h"
#include "document/CurrentIcon.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Messages.h"
#include "files/FileQuestions.h"
#include "files/format/IconWriter.h"
#include "files/format/Rereading.h"
#include "files/saving/MultiIconSaving.h"
#include "files/saving/MultiIconTexts.h"
#include "files/saving/PanelFiles.h"
#include "files/saving/ScratchIcon.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/text/Paths.h"
#include "platform/text/Utf8.h"

#include <cstdint>
#include <utility>

namespace gp {
namespace {

constexpr const char* kIconsFirst = "Icon files (*.ico)|*.ico|(*.*)|*.*|";
constexpr const char* kAllFilesFirst = "(*.*)|*.*|Icon files (*.ico)|*.ico|";
constexpr const char* kNotMade = "Failed to save current icon - preparation";
constexpr const char* kNotLoaded = "Failed to save current icon - at loading preparation stage";
constexpr const char* kNotReopened = "Failed to save current icon - at re-opening original file stage";

std::string questionFor(const std::string& ref) {
  return "The current icon is originated from Index Ref. " + ref +
         " in the multi-icon file.\n"
         "The file saved will have the current icon replacing its original one in\n"
         "the file, i.e. Ref " +
         ref +
         ", while others remain unchanged.   (You can run\n"
         "\"Enquiry - Show Icons In Multi-Icon File\" to inspect the original icon)\n"
         "\n"
         "Proceed?\n";
}

}  // namespace

MultiIconReplace::MultiIconReplace(FilesContext& context, const std::string& scratchFile)
    : context_(context),
      state_(context.state),
      scratchFile_(scratchFile),
      original_(context.state.current().path.trimmed()) {}

void MultiIconReplace::run() {
  finishCurrentIcon(context_);
  if (!FileExists(original_)) return fail(original_ + kFileGone);
  const bool isRead = readOriginal();
  if (!context_.boxes.ask(questionFor(std::to_string(placeOrFormer() + 1)))) return;
  if (!isRead) return fail(kReplaceNotRead);
  if (!isAllowed()) return;
  const std::string path = askForName();
  if (path.empty() || !isInNoOtherContainer(path)) return;
  auto image = makeImage();
  if (image) replaceBy(std::move(*image), path);
}

void MultiIconReplace::replaceBy(NewImage image, const std::string& path) {
  const auto lock = lockToUpdate(context_, original_);
  if (!lock) return;
  if (!readOriginal()) return fail(kNotReopened);
  if (!isAllowed()) return;
  replaceImage(arrays_, *place_, std::move(image));
  const WriteDefect defect = writeUpdated(context_, arrays_, original_, path);
  if (defect == WriteDefect::None)
    describeSaved(path);
  else
    fail(notUpdatedText(defect, path, SaveInto::Replace));
}

void MultiIconReplace::fail(const std::string& text) { tellFailure(context_, text); }

// Other programs may have added entries before that of the icon, or removed some.
bool MultiIconReplace::readOriginal() {
  arrays_ = {};
  const bool isRead = readIconArrays(original_, ReservedField::MustBeZero, arrays_) == ArraysDefect::None;
  takeWholeImages(arrays_);
  place_ = findOrigin(arrays_, state_.current().origin, formerPlace());
  return isRead;
}

int MultiIconReplace::formerPlace() const { return state_.current().multiIconIndex; }

bool MultiIconReplace::isAllowed() {
  traits_ = traitsToWrite(currentIcon(state_), state_.current());
  const int same = findSameIcon(arrays_, traits_, placeOrFormer());
  if (same >= 0)
    context_.boxes.tell(sameIconText(traits_, SaveInto::Replace));
  else if (!place_)
    context_.boxes.tell(kReplaceEntryGone);
  else
    return true;
  return false;
}

// The question promised to write to the original file, so the dialog proposes exactly that file. Under the filter of
// icon files it would add an extension to a name with another one, and under any filter to a name without one.
std::string MultiIconReplace::askForName() {
  const std::string name = ParseFileName(original_, PathPart::NameWithExtension);
  const char* const filter = endsWithAnyCase(name, kIconEnding) ? kIconsFirst : kAllFilesFirst;
  const char* const extension = name.find('.') == std::string::npos ? "" : kIconExtension;
  return askToSave(context_, name, filter, extension, OverwriteQuestion::ByDialog,
                   ParseFileName(original_, PathPart::DriveAndFolder));
}

// An icon in another container refers to its entry by index, which would then be that of another entry.
bool MultiIconReplace::isInNoOtherContainer(const std::string& path) {
  if (isFileOf(state_.current(), path)) return true;
  const auto container = findContainerOf(state_, path);
  if (container) context_.boxes.tell(openedInPanelText(*container, SaveInto::Replace));
  return !container;
}

std::optional<NewImage> MultiIconReplace::makeImage() {
  std::optional<NewImage> image;
  const IconImage icon = currentIcon(state_);
  const ColorDepth depth = depthToWrite(icon, state_.current());
  const ScratchDefect defect = makeNewImage(icon, depth, scratchFile_, original_, image);
  if (defect != ScratchDefect::None) fail(defect == ScratchDefect::NotWritten ? kNotMade : kNotLoaded);
  return image;
}

void MultiIconReplace::describeSaved(const std::string& path) {
  IconContainerRec& record = state_.current();
  const auto place = static_cast<std::size_t>(*place_);
  record.path = path;
  record.multiIconIndex = static_cast<std::int16_t>(*place_);
  record.origin = originOf(arrays_.entries[place], arrays_.images[place]);
  record.setDepth(traits_.depth);
  record.setHeaderDepth(traits_.depth);
  record.neverSaved = record.modified = false;
  state_.screen.lblStatusPanel[static_cast<std::size_t>(StatusPanel::Discrepancy)].clear();
  context_.display.changed(DisplayPart::StatusBar);
  context_.document.editingArea.RefreshStatusBar();
  context_.editor.UpdateCommands();
  context_.editor.AddHistory(path);
  context_.display.announce(news::kSaved);
}

}  // namespace gp
