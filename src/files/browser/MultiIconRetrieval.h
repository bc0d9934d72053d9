// One showing of the browser by the main form, over and over until the user has loaded what he wanted. A container is
// left or overwritten only with the user's consent.
#pragma once

#include "files/FilesContext.h"
#include "files/browser/MultiIconAnswers.h"

#include <string>

namespace gp {

class MultiIconRetrieval {
 public:
  // With `intoEditingArea` the loaded icons become the Current Icon, otherwise they go to their containers only.
  MultiIconRetrieval(FilesContext& context, std::string file, bool intoEditingArea);
  // The answer of the last load, empty if there was none.
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
