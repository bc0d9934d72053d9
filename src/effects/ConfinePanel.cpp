#include "effects/ConfinePanel.h"

#include "colour/ColorCount.h"
#include "document/CurrentIconGuard.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "drawing/UndoHistory.h"
#include "effects/EffectTexts.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"

#include <span>
#include <string>

namespace gp {
namespace {

constexpr std::array kTo256{ReductionMethod::Optimal, ReductionMethod::System};
constexpr std::array kTo16{ReductionMethod::Optimized, ReductionMethod::Nearest, ReductionMethod::StandardVga};
constexpr std::array kToMono{ReductionMethod::SelectCutoff, ReductionMethod::Weighted, ReductionMethod::Ordered};

struct Run {
  int colors;
  const char* caption;
  std::span<const ReductionMethod> methods;  // in the order of the list
};

constexpr std::array<Run, kConfineRuns> kRuns{{{256, "Confine Colors To 256-Color Palette", kTo256},
                                               {16, "Confine Colors To 16-Color Palette", kTo16},
                                               {2, "Confine Colors To Mono", kToMono}}};

const Run& rowOf(int run) { return kRuns.at(static_cast<std::size_t>(run)); }

}  // namespace

ConfinePanel::ConfinePanel(EffectFrame& frame) : EffectPanel(frame, kNumber) {}

void ConfinePanel::doConfineColors(int run) {
  if (!frame().mayApply() || hasFewColors(run)) return;
  const EditState& state = frame().state();
  if (state.current().fromMultiIconFile && !mayCurrentIconGo(frame().context())) return;
  run_ = run;
  methods_.at(static_cast<std::size_t>(run)) = 0;
  show();
  frame().context().pump.pump();
}

// The icon may be another one than the panel was opened for.
bool ConfinePanel::mayProceed() { return EffectPanel::mayProceed() && !hasFewColors(run_); }

void ConfinePanel::finish() {
  frame().history().clearUndoHistory();
  EffectPanel::finish();
}

bool ConfinePanel::hasFewColors(int run) {
  int colors = 0;
  GetColorBitCount_Image(frame().state().picImage, colors);
  if (colors <= 0 || colors > rowOf(run).colors) return false;
  if (frame().state().current().isTrueColor())
    offerToCorrectRecord(colors);
  else
    frame().context().boxes.tell(fewColorsText(colors));
  return true;
}

void ConfinePanel::offerToCorrectRecord(int colors) {
  const std::string number = std::to_string(colors);
  if (!frame().context().boxes.ask(
          "The header entry of current icon is 24-BPP True Color,  but the actual  image is of " + number +
          "-color.    Proceed to change header entry?"))
    return;
  // Both depths, as a save would write them. The icon counts as changed, so that the program asks to save it.
  IconContainerRec& record = frame().state().current();
  record.dirColors = record.bihColors = colors;
  record.bitCount = record.bihBitCount = static_cast<std::int16_t>(convBPP_Upto24(colors));
  record.modified = true;
  frame().document().editingArea.RefreshStatusBar();
  frame().context().editor.UpdateCommands();
  frame().context().boxes.tell("Header entry has been changed to " + std::to_string(record.bitCount) + "-BPP " +
                               number + "-Color.\nYou may proceed to save it to file.");
}

bool ConfinePanel::showsThreshold() const {
  return rowOf(run_).methods[static_cast<std::size_t>(cboConfineColors(run_))] == ReductionMethod::SelectCutoff;
}

const char* ConfinePanel::caption() const { return rowOf(run_).caption; }

void ConfinePanel::pickMethod(int index) {
  if (index < 0 || index >= static_cast<int>(rowOf(run_).methods.size())) return;
  methods_.at(static_cast<std::size_t>(run_)) = index;
  confinePreview();
}

void ConfinePanel::pickThreshold(int index) {
  if (index < 0 || index >= kThresholdCount) return;
  thresholdIndex_ = index;
  confinePreview();
}

void ConfinePanel::confinePreview() {
  frame().context().pump.pump();
  preview();
  frame().context().pump.pump();
}

IconImage ConfinePanel::apply(const IconImage& icon) const {
  const ReductionMethod method = rowOf(run_).methods[static_cast<std::size_t>(cboConfineColors(run_))];
  return reduceColors(icon.image, icon.mask, {method, thresholdIndex_ + kFirstThreshold});
}

}  // namespace gp
