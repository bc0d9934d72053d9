// One showing of the browser by the main form, over and over until the user has loaded what he wanted. It owns what the
// browser left to be loaded until that stands in its container. A container is left or overwritten only with the
// user's consent.
#pragma once

#include "files/FilesContext.h"
#include "files/IconForms.h"
#include "files/MultiIconAnswers.h"

#include <string>

namespace gp {

class MultiIconRetrieval {
 public:
  // With `intoEditingArea` the loaded icons become the Current Icon, otherwise they go to their containers only.
  MultiIconRetrieval(FilesContext& context, IconForms& forms, std::string file, bool intoEditingArea);
  // The answer of the last load, empty if there was none.
  std::string run();

 private:
  void showBrowser();
  bool goTo(int container);
  void load(const LoadAnswer& answer);
  void showInEditingArea();
  void showInContainer();

  FilesContext& context_;
  EditState& state_;
  IconForms& forms_;
  const std::string file_;
  const bool intoEditingArea_;
  const int firstContainer_;
  // Going to another container would lose them.
  Surface image_, mask_;
  AlphaMatrix alpha_;
};

}  // namespace gp
