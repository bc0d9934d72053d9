// The commands of the Alpha menu: they show the alpha screen with the Current Icon and apply what it leaves.
#pragma once

#include "alpha/AlphaForms.h"
#include "files/FilesContext.h"

namespace gp {

class IconSaver;
struct IconContainerRec;

class AlphaCommands {
 public:
  // The saver must outlive it.
  AlphaCommands(const FilesContext& context, IconSaver& saver);

  // Null without a main form: the commands do nothing then.
  void attach(AlphaForms* forms) { forms_ = forms; }

  // mnuAlphaSub: 0 edits alpha values, 1 converts to 24 bits. Saves what the screen leaves; the Current Icon changes
  // only after its file has been written. As long as it cannot be, the screen comes up again with the session.
  void mnuAlphaSub(int index);

 private:
  bool mayShow();
  void reportMissingValues(const IconImage& icon);
  void showScreen(AlphaMode mode);
  [[nodiscard]] bool apply(const AlphaOutcome& outcome);
  bool saveWithAlpha(const AlphaOutcome& outcome);
  bool saveWithoutAlpha(const AlphaOutcome& outcome);
  bool choosesPalette(const IconContainerRec& record, const IconImage& icon);

  FilesContext context_;
  EditState& state_;
  IconSaver& saver_;
  AlphaForms* forms_ = nullptr;
};

}  // namespace gp
