#include "files/Files.h"

#include "document/EditState.h"

namespace gp {

Files::Files(const Context& context, Document& document, Drawing& drawing, clsGPDialog& dialog,
             const std::string& scratchFile)
    : context_{context, context.state.process, document, drawing, dialog, exchange_, forms_},
      multiIcon(context_, scratchFile),
      iconFiles(context_, multiIcon),
      cursorFiles(context_),
      iconSaver(context_, cursorFiles) {}

void Files::showHeaderDiff(const std::string& path) {
  exchange_.gMultiIconFile = path;
  if (forms_) forms_->showHeaderDiff();
}

}  // namespace gp
