// A colour table of up to 256 entries and the ways to fill it: the fixed tables, and the optimal table for a picture.
// It owns the table and a copy that NearestPaletteIndex searches. The copy is made when the table is created and does
// not follow later changes of an entry.
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
  // Sets 256 black entries, none of which counts as filled. The colours for matching do not change.
  void InitializePalette();
  void ClearUp();

  void CreatePalette2();
  void CreatePalette16();
  void CreateGrays_256();
  // Computes colours that represent those of the picture, with a tree of 1 to 8 levels: at most maxColors (8 to 256;
  // with smaller values up to 8 can remain). The other entries of the 256 are black.
  void CreateOptimal(const clsGPDIB& dib, int maxColors, int levels);

  int Count() const { return static_cast<int>(mPalette.size()); }
  // The number of entries that CreateOptimal has filled. The fixed tables do not change it.
  int MaxCount() const { return maxCount_; }
  std::span<const DibPixel> PalettePtr() const { return mPalette; }
  // The colours that NearestPaletteIndex searches; empty before a table was created.
  std::span<const Color> hPal() const { return hPal_; }

  // The channels of an entry, which must exist.
  std::uint8_t rgbR(std::uint8_t index) const { return mPalette.at(index).red; }
  std::uint8_t rgbG(std::uint8_t index) const { return mPalette.at(index).green; }
  std::uint8_t rgbB(std::uint8_t index) const { return mPalette.at(index).blue; }
  void setRgbR(std::uint8_t index, std::uint8_t value) { mPalette.at(index).red = value; }
  void setRgbG(std::uint8_t index, std::uint8_t value) { mPalette.at(index).green = value; }
  void setRgbB(std::uint8_t index, std::uint8_t value) { mPalette.at(index).blue = value; }

  // Returns the index of the entry nearest to a colour, the first one among equals; 0 before a table was created.
  std::uint8_t NearestPaletteIndex(std::uint8_t red, std::uint8_t green, std::uint8_t blue) const;
  // Returns true when all filled entries are greys; false when CreateOptimal has filled none.
  bool IsGreyScale() const;

 private:
  void setColors(std::span<const Color> colors);
  void MakeHPal();

  std::vector<DibPixel> mPalette;
  std::vector<Color> hPal_;
  int maxCount_ = 0;
};

}  // namespace gp
