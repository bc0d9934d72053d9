#include "files/browser/MultiIconCommands.h"

#include "files/browser/MultiIconRetrieval.h"
#include "files/saving/MultiIconAdd.h"
#include "files/saving/MultiIconReplace.h"

#include <utility>

namespace gp {

MultiIconCommands::MultiIconCommands(const FilesContext& context, std::string scratchFile)
    : context_(context), scratchFile_(std::move(scratchFile)) {}

void MultiIconCommands::MultiIconFileSubRoutine(const std::string& filePath, bool intoEditingArea,
                                                std::string& result) {
  result = MultiIconRetrieval(context_, filePath, intoEditingArea).run();
}

std::string MultiIconCommands::showIconsFor(const std::string& filePath, int container) {
  MultiIconRetrieval retrieval(context_, filePath, true);
  retrieval.propose(container);
  return retrieval.run();
}

void MultiIconCommands::doMnuFileSaveMultiIconReplace() { MultiIconReplace(context_, scratchFile_).run(); }

void MultiIconCommands::doMnuFileSaveMultiIconAddTo() { MultiIconAdd(context_, scratchFile_).run(); }

}  // namespace gp
