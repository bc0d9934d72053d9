// The modal forms that the main form shows for the subsystems.
#include "alpha/ui/frmGPAlpha.h"
#include "files/ui/frmGPHeaderDiff.h"
#include "files/ui/frmGPMultiIcon.h"
#include "platform/qt/DialogOwner.h"
#include "shell/Shell.h"
#include "shell/ui/frmGPAbout.h"
#include "shell/ui/frmGPEdit.h"

namespace gp {

void frmGPEdit::showAbout() {
  frmGPAbout about(shell_.ports().system, shell_.ports().boxes, this);
  about.exec();
}

void frmGPEdit::showMultiIcon() {
  const DialogOwner owner;
  frmGPMultiIcon form(shell_.files().context(), display_, this);
  form.run();
}

void frmGPEdit::showHeaderDiff() {
  const DialogOwner owner;
  frmGPHeaderDiff form(shell_.files().context(), display_, this);
  form.exec();
}

AlphaOutcome frmGPEdit::showAlpha(const IconImage& icon, AlphaMode mode, const std::optional<AlphaMatrix>& resumed) {
  const DialogOwner owner;
  frmGPAlpha form(shell_.files().context(), icon, mode, this);
  if (resumed) form.resume(*resumed);
  form.exec();
  return form.outcome();
}

}  // namespace gp
