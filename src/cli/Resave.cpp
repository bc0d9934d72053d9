#include "cli/OneImage.h"
#include "cli/Subcommands.h"

namespace gp::cli {

int runResave(const Arguments& arguments) {
  ImageArguments told;
  if (const int status = takeImageArguments("resave", "IN.ico INDEX OUT.ico", arguments, 0, told); status != kDone)
    return status;
  const auto loaded = loadImage(told);
  return loaded ? writeIcon(loaded->icon, loaded->record, told.output) : kRefused;
}

}  // namespace gp::cli
