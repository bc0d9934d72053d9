// Small icons written as rows of characters, one for each pixel.
#pragma once

#include "effects/EffectTable.h"

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace gp::test {

using Rows = std::vector<std::string>;

struct PixelLook {
  char letter;
  Color image;
  Color mask;
};
// The first two letters are the picture that an effect works on.
inline constexpr PixelLook kPixelLooks[] = {
    {'o', rgb(32, 96, 152), kBlack},    // dark
    {'p', rgb(250, 200, 153), kBlack},  // pale
    {'.', kBlack, kWhite},              // transparent
    {'b', kBlack, kBlack},
    {'w', kWhite, kBlack},
    {'g', rgb(128, 128, 128), kBlack},
    {'l', rgb(224, 224, 224), kBlack},
    {'d', rgb(136, 136, 136), kBlack},
    {'r', rgb(255, 1, 2), kBlack},
    {'s', kGround, kBlack},
    {'^', kWhite, kWhite},                        // inverts the ground
    {'~', rgb(32, 96, 152), kWhite},              // changes the ground
    {'/', rgb(32, 96, 152), rgb(128, 128, 128)},  // a Mask that is neither black nor white
    {'-', kBlack, rgb(128, 128, 128)},            // the same with a black image
    // What effects make of these.
    {'1', rgb(83, 83, 83), kBlack},
    {'2', rgb(223, 159, 103), kBlack},
    {'3', rgb(152, 96, 32), kBlack},
    {'4', rgb(32, 48, 76), kBlack},
    {'5', rgb(32, 152, 32), kBlack},
    {'6', rgb(127, 128, 128), kBlack},
    {'7', rgb(176, 144, 116), kBlack},
    {'8', rgb(51, 51, 51), kBlack},
    {'9', rgb(63, 64, 64), kBlack},
    {'A', rgb(144, 176, 204), kBlack},
    {'B', rgb(88, 88, 88), kBlack},
    {'C', rgb(168, 168, 168), kBlack},
};

// The letters in front of those that effects make.
inline constexpr std::size_t kSourceLooks = std::ranges::find(kPixelLooks, '1', &PixelLook::letter) - kPixelLooks;

inline IconImage iconOf(const Rows& rows) {
  const int width = rows.empty() ? 0 : static_cast<int>(rows.front().size());
  const int height = static_cast<int>(rows.size());
  // A pixel whose character is no letter of the table keeps a colour that no letter has.
  IconImage icon{Surface(width, height, 0x123456), Surface(width, height, 0x123456), {}};
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      for (const PixelLook& look : kPixelLooks)
        if (look.letter == rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]) {
          icon.image.SetPixelV(x, y, look.image);
          icon.mask.SetPixelV(x, y, look.mask);
        }
  return icon;
}

// Returns the letters of the pixels, '?' for a pixel that no letter describes.
inline Rows rowsOf(const IconImage& icon) {
  if (icon.mask.width() != icon.image.width() || icon.mask.height() != icon.image.height()) return {"sizes differ"};
  Rows rows(static_cast<std::size_t>(icon.image.height()));
  for (int y = 0; y < icon.image.height(); ++y) {
    for (int x = 0; x < icon.image.width(); ++x) {
      char letter = '?';
      for (const PixelLook& look : kPixelLooks)
        if (icon.image.GetPixel(x, y) == look.image && icon.mask.GetPixel(x, y) == look.mask) letter = look.letter;
      rows[static_cast<std::size_t>(y)] += letter;
    }
  }
  return rows;
}

inline Rows flatRows(int width, int height, char letter) {
  return Rows(static_cast<std::size_t>(height), std::string(static_cast<std::size_t>(width), letter));
}

// Returns `count` icons of up to 9 x 9 pixels, sides of 0 included, in any mixture of the letters; the same in every
// run.
inline std::vector<Rows> randomIcons(int count) {
  constexpr int kLongestSide = 9;
  std::mt19937 numbers(20240607);
  const auto below = [&numbers](std::size_t end) { return numbers() % end; };
  std::vector<Rows> icons;
  for (int i = 0; i < count; ++i) {
    Rows rows(below(kLongestSide + 1));
    const std::size_t width = below(kLongestSide + 1);
    const std::size_t density = 1 + below(9);
    for (std::string& row : rows)
      for (std::size_t x = 0; x < width; ++x)
        row += below(10) < density ? '.' : kPixelLooks[below(kSourceLooks)].letter;
    icons.push_back(rows);
  }
  return icons;
}

// Returns the icon with the effect of that name.
inline IconImage applied(std::string_view effect, const IconImage& icon, const EffectValues& values = {}) {
  return findEffect(effect)->apply(icon, values);
}

// Returns the values with what the file of a setting contains.
inline EffectValues withPictures(EffectValues values, std::vector<IconImage> pictures) {
  values.setPictures(std::move(pictures));
  return values;
}

// Sizes that no icon of the program has.
struct OddSize {
  int width, height;
};
inline constexpr OddSize kOddSizes[] = {{0, 0}, {0, 5}, {5, 0}, {1, 1}, {2, 2}, {1, 4096}, {4096, 1}, {33, 7}};

}  // namespace gp::test
