// What all Panels share that change the Current Icon by an effect: whether it takes one, the Panel's coming and going,
// and putting a result in the icon's place. Nothing touches the icon before that.
#pragma once

#include "document/Context.h"
#include "document/IconImage.h"

namespace gp {

class UndoHistory;
struct Document;

class EffectFrame {
 public:
  EffectFrame(const Context& context, Document& document, UndoHistory& history);

  // Whether an effect may change the Current Icon; if not, says why: there is none, or it has alpha values, which would
  // no longer fit its pixels.
  bool mayApply();
  bool isUp(int panel) const;

  // The result becomes the Current Icon, and the Panel closes. Records no step of Undo.
  void applyTemps(const IconImage& result);
  // The same where picImage alone has been given its new pixels.
  void copyPanelAfterApply();

  // How many colours a Surface has; 0 without pixels. Effects on the unpainted area ask it of the Mask, which is all
  // painted or all transparent when it has one.
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
