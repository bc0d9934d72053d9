#include "document/CurrentIconGuard.h"

#include "document/EditState.h"
#include "document/Editor.h"

namespace gp {

bool mayCurrentIconGo(const Context& context, const std::string& message) {
  bool proceed = true;
  if (context.state.IsIconChanged()) context.editor.AskSaveCurrent(message, proceed);
  return proceed;
}

}  // namespace gp
