#include "cli/OneImage.h"
#include "cli/Subcommands.h"

namespace gp::cli {

int runResave(const Arguments& arguments) {
  ImageArguments given;
  if (const int status = takeImageArguments("resave", "IN.ico INDEX OUT.ico", arguments, 0, given); status != kDone)
    return status;
  const auto loaded = loadImage(given);
  return loaded ? writeIcon(loaded->icon, loaded->record, given.output) : kRefused;
}

}  // namespace gp::cli
