#include "alpha/AlphaCommands.h"

namespace gp {

AlphaCommands::AlphaCommands(const FilesContext& context) : context_(context), state_(context.state) {}

void AlphaCommands::mnuAlphaSub(int /*index*/) {}

}  // namespace gp
