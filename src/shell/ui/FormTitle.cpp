#include "shell/ui/FormTitle.h"

#include "document/Containers.h"
#include "document/EditState.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/qt/PathText.h"

#include <QWidget>

namespace gp {
namespace {

constexpr const char* kMark = "[*]";  // where Qt shows the mark of changes; doubled, it is these three characters

}  // namespace

void showTitle(QWidget& form, const EditState& state) {
  const QString program = kProgramName;
  const QString name = toText(nameOf(state.current())).replace(kMark, QString(kMark) + kMark);
  form.setWindowTitle(state.current().present ? name + kMark + " - " + program : program);
  form.setWindowModified(state.IsIconChanged());
}

}  // namespace gp
