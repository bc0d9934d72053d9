// One opening of an icon file into the current container, from the probe to the reminders. It owns only what is known
// of the file meanwhile. A failure behind the preparation leaves the container empty.
#pragma once

#include "files/FilesContext.h"
#include "files/IconProbe.h"
#include "platform/files/Files.h"

#include <string>

namespace gp {

// Spoken: boxes, confirmation, history and reminders. Quiet: none of them.
enum class OpeningManner { Spoken, Quiet };

class IconOpening {
 public:
  IconOpening(FilesContext& context, std::string path, OpeningManner manner);
  // True when the icon stands in the current container and on the Editing Area.
  bool run();

 private:
  bool probe();
  bool isSquare();
  bool isOfferedSize();
  bool isConfirmed();
  void prepare();
  bool load();
  bool isShownDepth() const;
  void fillContainer();
  void remind();
  bool fail(const std::string& text, BoxIcon icon);
  bool leaveEmpty(const char* text, BoxIcon icon);
  bool isSpoken() const { return manner_ == OpeningManner::Spoken; }

  FilesContext& context_;
  EditState& state_;
  const std::string path_;
  const OpeningManner manner_;
  FileBytes bytes_;
  IconFacts facts_;
};

}  // namespace gp
