#include "files/MultiIconCommands.h"

#include "document/Messages.h"
#include "files/MultiIconAdd.h"
#include "files/MultiIconReplace.h"
#include "files/MultiIconRetrieval.h"

#include <utility>

namespace gp {

MultiIconCommands::MultiIconCommands(const FilesContext& context, IconForms& forms, std::string scratchFile)
    : context_(context), forms_(forms), scratchFile_(std::move(scratchFile)) {}

void MultiIconCommands::MultiIconFileSubRoutine(const std::string& filePath, bool intoEditingArea,
                                                std::string& result) {
  result = MultiIconRetrieval(context_, forms_, filePath, intoEditingArea).run();
}

bool MultiIconCommands::hasIcon() {
  context_.editor.CommitPendingPaint();
  if (!context_.state.current().present) tellNoIconYet(context_.boxes);
  return context_.state.current().present;
}

void MultiIconCommands::doMnuFileSaveMultiIconReplace() {
  if (hasIcon() && context_.state.current().fromMultiIconFile) MultiIconReplace(context_, scratchFile_).run();
}

void MultiIconCommands::doMnuFileSaveMultiIconAddTo() {
  if (hasIcon() && !context_.state.current().fromMultiIconFile) MultiIconAdd(context_, forms_, scratchFile_).run();
}

}  // namespace gp
