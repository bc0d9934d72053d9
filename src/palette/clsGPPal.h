// One colour table of up to 256 entries, and the ways to fill it: the fixed tables and the optimal one of a picture. It
// owns the table and the palette that matches are looked for in, which is made with the table and follows no later
// change of an entry.
#pragma once

#include "palette/clsGPDIB.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace gp {

// The sixteen standard colours in the order of CreatePalette16.
inline constexpr std::array<Color, 16> kStandardPalette{
    rgb(0, 0, 0),     rgb(128, 0, 0),     rgb(0, 128, 0),     rgb(128, 128, 0),  rgb(0, 0, 128), rgb(128, 0, 128),
    rgb(0, 128, 128), rgb(192, 192, 192), rgb(128, 128, 128), rgb(255, 0, 0),    rgb(0, 255, 0), rgb(255, 255, 0),
    rgb(0, 0, 255),   rgb(255, 0, 255),   rgb(0, 255, 255),   rgb(255, 255, 255)};

class clsGPPal {
 public:
  // 256 black entries; none counts as filled. The palette for matches stays as it was.
  void InitializePalette();
  void ClearUp();

  void CreatePalette2();
  void CreatePalette16();
  void CreateGrays_256();
  // Colours that stand for those of the picture, at most maxColors (8 to 256; with fewer, up to 8 may remain) by a tree
  // of 1 to 8 levels. The rest of the 256 entries is black.
  void CreateOptimal(const clsGPDIB& dib, int maxColors, int levels);

  int Count() const { return static_cast<int>(mPalette.size()); }
  // How many entries CreateOptimal has filled. The fixed tables leave the number as it is.
  int MaxCount() const { return maxCount_; }
  std::span<const DibPixel> PalettePtr() const { return mPalette; }
  // The colours that matches are looked for in; empty before a table was made.
  std::span<const Color> hPal() const { return hPal_; }

  // Channels of an entry, which must be in the table.
  std::uint8_t rgbR(std::uint8_t index) const { return mPalette.at(index).red; }
  std::uint8_t rgbG(std::uint8_t index) const { return mPalette.at(index).green; }
  std::uint8_t rgbB(std::uint8_t index) const { return mPalette.at(index).blue; }
  void setRgbR(std::uint8_t index, std::uint8_t value) { mPalette.at(index).red = value; }
  void setRgbG(std::uint8_t index, std::uint8_t value) { mPalette.at(index).green = value; }
  void setRgbB(std::uint8_t index, std::uint8_t value) { mPalette.at(index).blue = value; }

  // The entry nearest to a colour, the first among equals; 0 before a table was made.
  std::uint8_t NearestPaletteIndex(std::uint8_t red, std::uint8_t green, std::uint8_t blue) const;
  // Whether all filled entries are greys. False when CreateOptimal has filled none, greys or not.
  bool IsGreyScale() const;

 private:
  void setColors(std::span<const Color> colors);
  void MakeHPal();

  std::vector<DibPixel> mPalette;
  std::vector<Color> hPal_;
  int maxCount_ = 0;
};

}  // namespace gp
