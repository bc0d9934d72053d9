#include "cli/OneImage.h"
#include "cli/Subcommands.h"
#include "colour/ColorCount.h"
#include "effects/ColorReduction.h"
#include "effects/EffectTexts.h"

#include <algorithm>
#include <array>

namespace gp::cli {
namespace {

struct Method {
  int colors;  // the number that it reduces to
  std::string_view name;
  ReductionMethod method;
};

constexpr std::array<Method, 8> kMethods{{{kPaletteDepth.colors, "optimal", ReductionMethod::Optimal},
                                          {kPaletteDepth.colors, "system", ReductionMethod::System},
                                          {kStandardDepth.colors, "optimized", ReductionMethod::Optimized},
                                          {kStandardDepth.colors, "nearest", ReductionMethod::Nearest},
                                          {kStandardDepth.colors, "vga", ReductionMethod::StandardVga},
                                          {kMonoDepth.colors, "cutoff", ReductionMethod::SelectCutoff},
                                          {kMonoDepth.colors, "weighted", ReductionMethod::Weighted},
                                          {kMonoDepth.colors, "ordered", ReductionMethod::Ordered}}};

struct ReduceOptions {
  std::string to, method, threshold;  // empty if not given
};

bool takeOptions(Arguments& arguments, ReduceOptions& options) {
  return takeOption(arguments, "--to", options.to) && takeOption(arguments, "--method", options.method) &&
         takeOption(arguments, "--threshold", options.threshold);
}

// Null if there is no such method for that number of colours.
const Method* findMethod(const ReduceOptions& options) {
  const auto found = std::ranges::find_if(kMethods, [&](const Method& row) {
    return std::to_string(row.colors) == options.to && row.name == options.method;
  });
  return found == kMethods.end() ? nullptr : &*found;
}

// True, after an error message, for an icon that has no more colours than `most`.
bool hasFewColors(const IconImage& icon, int most, const std::string& path) {
  int colors = 0;
  GetColorBitCount_Image(icon.image, colors);
  const bool isFew = colors > 0 && colors <= most;
  if (isFew) complain(path, fewColorsText(colors));
  return isFew;
}

int reduceTo(const Method& method, const ReductionSettings& settings, const ImageArguments& given) {
  const auto loaded = loadImageWithoutAlpha(given);
  if (!loaded || hasFewColors(loaded->icon, method.colors, given.input)) return kRefused;
  return writeIcon(reduceColors(loaded->icon.image, loaded->icon.mask, settings), loaded->record, given.output);
}

}  // namespace

int runReduce(const Arguments& arguments) {
  Arguments rest = arguments;
  ReduceOptions options;
  ImageArguments given;
  if (!takeOptions(rest, options)) return badUsage("reduce: --to, --method and --threshold take one value each");
  if (options.to.empty() || options.method.empty()) return badUsage("reduce: --to and --method are needed");
  const Method* const method = findMethod(options);
  if (!method) return badUsage("reduce: --to " + options.to + " has no method " + options.method);
  ReductionSettings settings{.method = method->method};
  if (!options.threshold.empty() && method->method != ReductionMethod::SelectCutoff)
    return badUsage("reduce: --threshold goes with cutoff only");
  if (!options.threshold.empty() && !parseNumber(options.threshold, settings.threshold))
    return badUsage("reduce: --threshold takes a number");
  if (const int status = takeImageArguments("reduce", "IN.ico INDEX OUT.ico", rest, 0, given); status != kDone)
    return status;
  return reduceTo(*method, settings, given);
}

}  // namespace gp::cli
