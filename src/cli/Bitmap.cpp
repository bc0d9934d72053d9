#include "cli/OneImage.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"
#include "files/saving/BitmapSaving.h"
#include "platform/text/ColorDigits.h"

#include <optional>

namespace gp::cli {
int runBmp(const Arguments& arguments) {
  Arguments rest = arguments;
  std::string color;
  Color background = kGround;
  ImageArguments given;
  if (!takeOption(rest, "--background", color)) return badUsage("bmp: one --background RRGGBB is all it takes");
  if (!color.empty()) {
    const std::optional<Color> chosen = colorOfDigits(color);
    if (!chosen) return badUsage("bmp: --background takes six hexadecimal digits");
    background = *chosen;
  }
  if (const int status = takeImageArguments("bmp", "IN.ico INDEX OUT.bmp", rest, 0, given); status != kDone)
    return status;
  const auto loaded = loadImage(given);
  if (!loaded) return kRefused;
  const Surface look = composedForBitmap(loaded->icon, loaded->record, background);
  return answerToWriting(writeOutput(given.output, composeByColors(look)), given.output);
}

}  // namespace gp::cli
