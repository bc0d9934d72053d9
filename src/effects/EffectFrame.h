// What the side panels of all effects share: whether the Current Icon takes an effect, whether the panel is visible,
// and replacing the icon by the result. Nothing changes the icon before that.
#pragma once

#include "document/Context.h"
#include "document/IconImage.h"

namespace gp {

class EffectValues;
class UndoHistory;
struct Document;
struct EffectRow;
struct Refusal;

class EffectFrame {
 public:
  EffectFrame(const Context& context, Document& document, UndoHistory& history);

  // Whether the Current Icon takes an effect. If not, shows the reason: there is no icon, or it has alpha values, which
  // would no longer fit its pixels.
  bool mayApply();
  // The same for one effect, which may refuse icons or values for a reason that it names.
  bool mayApply(const EffectRow& effect, const EffectValues& values);
  // Shows the reason of a refusal.
  void tell(const Refusal& refusal);
  // Whether fraPanel(panel) is visible.
  bool isUp(int panel) const;
  // Whether there is a Current Icon.
  bool hasIcon() const;
  // The pixels of the Current Icon, without alpha values.
  IconImage currentIcon() const;

  // Replaces the Current Icon by the result and closes the panel. Records no step of Undo.
  void applyTemps(const IconImage& result);
  // The same when picImage and picMask already have their new pixels.
  void copyPanelAfterApply();

  // Returns the number of colours of a Surface; 0 without pixels. A Mask of one colour is all painted or all
  // transparent.
  int countMaskColors(const Surface& surface);

  const Context& context() const { return context_; }
  EditState& state() const { return state_; }
  Document& document() const { return document_; }
  UndoHistory& history() const { return history_; }

 private:
  Context context_;
  EditState& state_;
  Document& document_;
  UndoHistory& history_;
};

}  // namespace gp
