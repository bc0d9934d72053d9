#include "platform/files/Terminal.h"

#include <unistd.h>

namespace gp {

bool isTerminal(std::FILE* stream) { return isatty(fileno(stream)) == 1; }

}  // namespace gp
