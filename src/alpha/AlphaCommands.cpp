#include "alpha/AlphaCommands.h"

#include "alpha/AlphaConversion.h"
#include "document/Containers.h"
#include "document/CurrentIcon.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Messages.h"
#include "drawing/Drawing.h"
#include "files/format/IconWriter.h"
#include "files/saving/IconSaver.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {
namespace {

constexpr const char* kNoChannelQuestion = "Current Icon has no Alpha Channel.  Proceed still?";
constexpr const char* kNotTrueColorQuestion = "Current Icon is not a True Color icon.  Proceed still?";
constexpr const char* kAniQuestion = "Terminate animated cursor session?";
constexpr const char* kValuesMissing = "Original alpha values for current icon missing/removed.";
constexpr const char* kValuesNotCopied = "Failed to copy alpha values for current icon.";
constexpr const char* kValuesNotStored = "Failed to copy the Alpha Channel values to record.";

std::string paletteQuestion(int colors) {
  return "The actual color depth of image is of " + std::to_string(colors) +
         "-color only.\nSave with this palette mode instead?";
}

}  // namespace

AlphaCommands::AlphaCommands(const FilesContext& context, IconSaver& saver)
    : context_(context), state_(context.state), saver_(saver) {}

void AlphaCommands::mnuAlphaSub(int index) {
  if (!forms_) return;
  context_.document.iconsPanel.CommitPendingPaint();
  // Another icon, or none, can be the Current Icon after a question.
  const unsigned serial = state_.iconSerial;
  if (!mayShow() || state_.iconSerial != serial) return;
  if (state_.screen.aniContainerVisible) context_.editor.endAniSession();
  saver_.closeSidePanels();
  context_.document.iconsPanel.EndToolAction();
  showScreen(static_cast<AlphaMode>(index));
}

bool AlphaCommands::mayShow() {
  const IconContainerRec& record = state_.current();
  if (!record.present) {
    context_.boxes.tell(kNoIconYet);
    return false;
  }
  const char* question = record.isTrueColor() ? kNoChannelQuestion : kNotTrueColorQuestion;
  if (!record.hasAlpha && !context_.boxes.ask(question)) return false;
  return !state_.screen.aniContainerVisible || context_.boxes.ask(kAniQuestion);
}

void AlphaCommands::showScreen(AlphaMode mode) {
  const unsigned serial = state_.iconSerial;
  const IconImage icon = currentIcon(state_);
  reportMissingValues(icon);
  std::optional<AlphaMatrix> resumed;
  // The values of another icon are not saved.
  while (state_.iconSerial == serial) {
    const AlphaOutcome outcome = forms_->showAlpha(icon, mode, resumed);
    if (state_.iconSerial != serial || apply(outcome)) break;
    resumed = outcome.values;
  }
  if (state_.iconSerial == serial) context_.document.editingArea.ShowCurrentIcon();
}

void AlphaCommands::reportMissingValues(const IconImage& icon) {
  if (!state_.current().hasAlpha || icon.hasAlphaValues()) return;
  context_.boxes.tell(AlphaRecIsReady(state_) ? kValuesNotCopied : kValuesMissing, BoxIcon::Exclamation);
}

// Returns false when the outcome could not be saved, so that the session is not over.
bool AlphaCommands::apply(const AlphaOutcome& outcome) {
  switch (outcome.result) {
    case AlphaResult::None:
      break;
    case AlphaResult::ConvertTo24:
      return saveWithoutAlpha(outcome);
    case AlphaResult::SaveChanged:
    case AlphaResult::SaveNew:
      return saveWithAlpha(outcome);
  }
  return true;
}

bool AlphaCommands::saveWithAlpha(const AlphaOutcome& outcome) {
  if (!outcome.icon.hasAlphaValues()) {
    context_.boxes.tell(kValuesNotStored, BoxIcon::Exclamation);
    return true;
  }
  return saver_.saveReplacement(outcome.icon, recordWithAlpha(state_.current()), outcome.target);
}

bool AlphaCommands::saveWithoutAlpha(const AlphaOutcome& outcome) {
  const unsigned serial = state_.iconSerial;
  const IconContainerRec former = state_.current();
  const bool asPalette = choosesPalette(former, outcome.icon);
  if (state_.iconSerial != serial) return false;
  return saver_.saveReplacement(outcome.icon, recordWithoutAlpha(former, outcome.icon, asPalette), outcome.target);
}

// Only a palette that can be written is offered.
bool AlphaCommands::choosesPalette(const IconContainerRec& record, const IconImage& icon) {
  const ColorDepth depth = depthToWrite(icon, recordWithoutAlpha(record, icon, true));
  return !depth.isTrueColor() && context_.boxes.ask(paletteQuestion(depth.colors));
}

}  // namespace gp
