#include "document/Hourglass.h"

#include "document/Display.h"
#include "document/EditState.h"

#include <utility>

namespace gp {

Hourglass::Hourglass(const Context& context)
    : context_(context), before_(std::exchange(context.state.screen.hourglass, true)) {
  context_.display.changed(DisplayPart::Pointer);
}

Hourglass::~Hourglass() {
  context_.state.screen.hourglass = before_;
  context_.display.changed(DisplayPart::Pointer);
}

}  // namespace gp
