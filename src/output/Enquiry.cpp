#include "output/Enquiry.h"

#include "document/Messages.h"
#include "platform/files/Files.h"

#include <algorithm>
#include <array>

namespace gp {

Enquiry::Enquiry(EditState& state, Editor& editor, MessageBoxes& boxes, MessagePump& pump, IconForms& forms,
                 CursorFiles& cursors)
    : state_(state), editor_(editor), boxes_(boxes), pump_(pump), forms_(forms), cursors_(cursors) {}

void Enquiry::mnuEnquiryCurrent(int index) {
  struct Row {
    int index;
    void (Enquiry::*run)();
  };
  static constexpr std::array<Row, 3> kCommands{
      {{5, &Enquiry::showOriginalHeaders}, {9, &Enquiry::showIconsInFile}, {11, &Enquiry::revealHotspot}}};
  if (!state_.current().present) return tellNoIconYet(boxes_);
  pump_.pump();
  const auto command = std::ranges::find(kCommands, index, &Row::index);
  if (command != kCommands.end()) (this->*command->run)();
}

bool Enquiry::originalIsThere(const std::string& path) {
  if (FileExists(path)) return true;
  boxes_.tell(path + kFileGone, BoxIcon::Exclamation);
  return false;
}

void Enquiry::showOriginalHeaders() {
  if (!state_.current().isDiscrepant()) return;
  const std::string path = state_.current().path.trimmed();
  if (!originalIsThere(path)) return;
  state_.multiIcon.gMultiIconFile = path;
  forms_.showHeaderDiff();
}

void Enquiry::showIconsInFile() {
  if (!state_.current().fromMultiIconFile) return;
  editor_.CommitPendingPaint();
  // A save gives the icon a file of its own.
  const std::string path = state_.current().path.trimmed();
  bool proceed = true;
  if (state_.IsIconChanged()) editor_.AskSaveCurrent("", proceed);
  if (!proceed || !originalIsThere(path)) return;
  bool ok = false;
  editor_.doOpenIconFile(path, true, ok);
}

void Enquiry::revealHotspot() {
  if (state_.current().isCursor) cursors_.revealOriginalHotspot();
}

}  // namespace gp
