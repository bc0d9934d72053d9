// The commands of the Alpha menu: they show the alpha screen with the Current Icon and apply what it leaves.
#pragma once

#include "alpha/AlphaForms.h"
#include "files/FilesContext.h"

namespace gp {

class AlphaCommands {
 public:
  explicit AlphaCommands(const FilesContext& context);

  // Null without a main form: the commands do nothing then.
  void attach(AlphaForms* forms) { forms_ = forms; }

  // mnuAlphaSub: 0 edits alpha values, 1 converts to 24 bits.
  void mnuAlphaSub(int index);

 private:
  FilesContext context_;
  EditState& state_;
  AlphaForms* forms_ = nullptr;
};

}  // namespace gp
