#include "cli/OneImage.h"
#include "cli/Subcommands.h"
#include "document/AlphaCompositing.h"
#include "document/Compositing.h"
#include "document/Containers.h"
#include "files/BitmapSaving.h"

namespace gp::cli {
namespace {

// The Current Icon's look. Alpha blends over the usual ground whatever the background is; transparent pixels are told
// from real silver by the Mask.
Surface lookOn(Color background, const EditState& state) {
  Surface look = composedIcon(state.picImage, state.picMask);
  if (AlphaRecIsReady(state))
    composeAlpha(state.picMask, state.picImage, state.mAlphaRecs.at(static_cast<std::size_t>(state.mCurContainer)),
                 look);
  for (int y = 0; y < look.height(); ++y)
    for (int x = 0; x < look.width(); ++x)
      if (look.GetPixel(x, y) == kGround && state.picMask.GetPixel(x, y) == kWhite) look.SetPixelV(x, y, background);
  return look;
}

}  // namespace

int runBmp(const Arguments& arguments) {
  Arguments rest = arguments;
  std::string color;
  Color background = kGround;
  ImageArguments told;
  if (!takeOption(rest, "--background", color)) return badUsage("bmp: one --background RRGGBB is all it takes");
  if (!color.empty() && !parseColor(color, background))
    return badUsage("bmp: --background takes six hexadecimal digits");
  if (const int status = takeImageArguments("bmp", "IN.ico INDEX OUT.bmp", rest, 0, told); status != kDone)
    return status;
  EditState state;
  if (!loadImage(told, state)) return kRefused;
  return answerToWriting(saveByColors(lookOn(background, state), told.output), told.output);
}

}  // namespace gp::cli
