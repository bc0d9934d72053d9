#include "output/Enquiry.h"

#include "colour/ColorCount.h"
#include "document/CurrentIcon.h"
#include "document/CurrentIconGuard.h"
#include "document/EditState.h"
#include "document/Hourglass.h"
#include "document/Messages.h"
#include "files/Files.h"
#include "files/enquiry/IconProperties.h"
#include "platform/files/Files.h"
#include "platform/ports/MessagePump.h"

namespace gp {

Enquiry::Enquiry(const Context& context, Files& files) : context_(context), state_(context.state), files_(files) {}

bool Enquiry::originalIsThere(const std::string& path) {
  if (FileExists(path)) return true;
  context_.boxes.tell(path + kFileGone, BoxIcon::Exclamation);
  return false;
}

void Enquiry::showProperties() {
  context_.pump.pump();
  context_.boxes.tell(propertiesText(state_.current(), state_.picImage, state_.IsIconChanged()));
}

// Transparent pixels count with their black.
void Enquiry::showColorCount() {
  context_.pump.pump();
  const int count = [this] {
    const Hourglass hourglass(context_);
    return CountColors(state_.picImage);
  }();
  context_.boxes.tell("COUNT OF COLORS:\n\nActual count of colors used:   " + std::to_string(count) + "\n");
}

void Enquiry::showByteCount() {
  context_.pump.pump();
  context_.boxes.tell(std::to_string(bytesWhenSaved(state_.current(), currentIcon(state_))) +
                      " bytes when saved to a single-icon file.");
}

void Enquiry::showOriginalHeaders() {
  context_.pump.pump();
  const std::string path = state_.current().path.trimmed();
  if (!originalIsThere(path)) return;
  files_.showHeaderDiff(path);
}

void Enquiry::showIconsInFile() {
  context_.pump.pump();
  // The path is read first: a save may give the icon another file.
  const std::string path = state_.current().path.trimmed();
  if (!mayCurrentIconGo(context_) || !originalIsThere(path)) return;
  bool ok = false;
  files_.iconFiles.doOpenIconFile(path, true, ok);
}

void Enquiry::revealHotspot() {
  context_.pump.pump();
  files_.cursorFiles.revealOriginalHotspot();
}

}  // namespace gp
