#include "effects/StandardSnap.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr Color kMaroon = rgb(128, 0, 0);
constexpr Color kGreen = rgb(0, 128, 0);
constexpr Color kOlive = rgb(128, 128, 0);
constexpr Color kNavy = rgb(0, 0, 128);
constexpr Color kPurple = rgb(128, 0, 128);
constexpr Color kTeal = rgb(0, 128, 128);
constexpr Color kGray = rgb(128, 128, 128);
constexpr Color kSilver = rgb(192, 192, 192);
constexpr Color kRed = rgb(255, 0, 0);
constexpr Color kLime = rgb(0, 255, 0);
constexpr Color kYellow = rgb(255, 255, 0);
constexpr Color kBlue = rgb(0, 0, 255);
constexpr Color kMagenta = rgb(255, 0, 255);
constexpr Color kCyan = rgb(0, 255, 255);

constexpr std::size_t kLevels = 4;
// The highest value that is rounded to each level except the last. The levels are 0, 128, 192 and 255.
constexpr std::array<int, kLevels - 1> kLevelEnds{64, 159, 223};

std::size_t levelOf(int channel) {
  return static_cast<std::size_t>(std::ranges::lower_bound(kLevelEnds, channel) - kLevelEnds.begin());
}

// Indexed by the levels of red, green and blue. The rules differ between channels and between levels, which is
// intended.
constexpr Color kSnapped[kLevels][kLevels][kLevels] = {{{kBlack, kNavy, kNavy, kBlue},
                                                        {kGreen, kTeal, kTeal, kTeal},
                                                        {kGreen, kTeal, kCyan, kCyan},
                                                        {kLime, kCyan, kCyan, kCyan}},
                                                       {{kMaroon, kPurple, kPurple, kPurple},
                                                        {kOlive, kGray, kGray, kGray},
                                                        {kOlive, kGray, kGray, kGray},
                                                        {kOlive, kGray, kGray, kGray}},
                                                       {{kMaroon, kPurple, kPurple, kPurple},
                                                        {kOlive, kSilver, kSilver, kSilver},
                                                        {kOlive, kSilver, kSilver, kSilver},
                                                        {kOlive, kSilver, kSilver, kSilver}},
                                                       {{kRed, kMagenta, kMagenta, kMagenta},
                                                        {kYellow, kWhite, kWhite, kWhite},
                                                        {kYellow, kWhite, kWhite, kWhite},
                                                        {kYellow, kWhite, kWhite, kWhite}}};

}  // namespace

Color snapToStandard(Color color) {
  return kSnapped[levelOf(redOf(color))][levelOf(greenOf(color))][levelOf(blueOf(color))];
}

}  // namespace gp
