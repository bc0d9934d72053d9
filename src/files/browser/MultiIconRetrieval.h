// Shows the browser for the main form, repeatedly until the user has finished loading. A container is replaced only
// with the user's consent.
#pragma once

#include "files/FilesContext.h"
#include "files/browser/MultiIconAnswers.h"

#include <optional>
#include <string>

namespace gp {

class MultiIconRetrieval {
 public:
  // With `intoEditingArea` the loaded icons become the Current Icon; otherwise they are only stored in their
  // containers. The caller has dealt with the icon of the current container.
  MultiIconRetrieval(FilesContext& context, std::string file, bool intoEditingArea);
  // Makes the browser propose another container first. The icon of the current container is not dealt with then.
  void propose(int container);
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
  int proposed_;                // the container that the browser selects first
  std::optional<int> settled_;  // the container whose icon the caller has dealt with
};

}  // namespace gp
