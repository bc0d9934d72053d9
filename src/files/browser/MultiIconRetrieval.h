// Shows the browser for the main form, repeatedly until the user has finished loading. A container is replaced only
// with the user's consent.
#pragma once

#include "files/FilesContext.h"
#include "files/browser/MultiIconAnswers.h"

#include <string>

namespace gp {

class MultiIconRetrieval {
 public:
  // With `intoEditingArea` the loaded icons become the Current Icon; otherwise they are only stored in their
  // containers.
  MultiIconRetrieval(FilesContext& context, std::string file, bool intoEditingArea);
  // Returns the answer of the last load, empty if there was none.
  std::string run();

 private:
  void showBrowser();
  bool goTo(int container);
  void load(const LoadAnswer& answer);

  FilesContext& context_;
  EditState& state_;
  const std::string file_;
  const bool intoEditingArea_;
  const int firstContainer_;
};

}  // namespace gp
