// A Surface is the program's pixel buffer: 32-bit pixels 0x00BBGGRR, top row first. It has two layers: the drawing,
// which all operations read and write, and the picture, to which clearDrawing() resets the drawing. The platform's
// drawing operations are in RasterOps.h, Stretch.h, Pens.h and FloodFill.h. It owns its pixels; copies are independent.
// Positions outside are never an error: reading returns kNoColor, writing does nothing.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

// 0x00BBGGRR. Signed, so that kNoColor differs from every colour.
using Color = std::int32_t;

inline constexpr Color kNoColor = -1;
inline constexpr Color kBlack = 0x000000;
inline constexpr Color kWhite = 0xFFFFFF;
// The colour shown behind transparent pixels, everywhere in the program.
inline constexpr Color kGround = 0xC0C0C0;

constexpr Color rgb(int red, int green, int blue) { return red | green << 8 | blue << 16; }
constexpr int redOf(Color c) { return c & 0xFF; }
constexpr int greenOf(Color c) { return c >> 8 & 0xFF; }
constexpr int blueOf(Color c) { return c >> 16 & 0xFF; }

// Pixels have a fourth byte, which raster operations copy and which is not part of the colour.
inline constexpr std::uint32_t kColorBits = 0x00FFFFFF;
// Returns a colour as it is stored in a pixel.
constexpr std::uint32_t storedForm(Color c) { return static_cast<std::uint32_t>(c) & kColorBits; }

enum class FillMode { Transparent, Solid };
enum class PenStyle { Solid, Dot };
enum class DrawMode { Copy, Invert };
// The values are the platform's mode codes.
enum class StretchMode { BlackOnWhite = 1, KeepOrDrop = 3, Halftone = 4 };

class Surface {
 public:
  // Sizes are in pixels; negative ones count as 0. All pixels have the back colour.
  explicit Surface(int width = 0, int height = 0, Color backColor = kWhite);

  int width() const { return width_; }
  int height() const { return height_; }

  // Returns the colour of a pixel of the drawing; kNoColor outside.
  Color GetPixel(int x, int y) const {
    return contains(x, y) ? static_cast<Color>(pixels_[index(x, y)] & kColorBits) : kNoColor;
  }
  // Sets one pixel of the drawing; does nothing outside.
  void SetPixelV(int x, int y, Color color) {
    if (!contains(x, y)) return;
    pixels_[index(x, y)] = storedForm(color);
    touch(x, y, x + 1, y + 1);
  }
  bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

  // The drawing, row by row from the top.
  std::span<const std::uint32_t> pixels() const { return pixels_; }
  // Returns row y of the drawing, which must exist.
  std::span<const std::uint32_t> row(int y) const;
  // Returns the first pixel of row y, for writing. The caller may change only [x1, x2), which must lie inside.
  std::uint32_t* rowForWriting(int y, int x1, int x2);
  // The same for rows [y1, y2): returns the first pixel of row y1; each row is width() pixels after the one above it.
  std::uint32_t* rowsForWriting(int y1, int y2, int x1, int x2);

  // Changes the size; picture and drawing are lost, all pixels have the back colour.
  void resize(int width, int height);
  // Removes the picture; the drawing has the back colour.
  void clearPicture();
  // Resets the drawing to the picture, or to the back colour when there is no picture.
  void clearDrawing();
  // Makes the drawing the picture.
  void makePersistent();
  bool hasPicture() const { return hasPicture_; }
  // Fills the whole drawing with one colour; the picture does not change.
  void fill(Color color);

  Color backColor = kWhite;
  Color fillColor = kBlack;
  FillMode fillMode = FillMode::Transparent;
  int penWidth = 1;
  PenStyle penStyle = PenStyle::Solid;
  DrawMode drawMode = DrawMode::Copy;
  StretchMode stretchMode = StretchMode::KeepOrDrop;
  // Difference between the outer and the client size, in pixels; MakeSameSize does not change it.
  int border = 0;

 private:
  struct Area {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  };

  std::size_t index(int x, int y) const { return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + x; }
  void touch(int x1, int y1, int x2, int y2);
  void forgetChanges() { changed_ = {}; }
  void clearToBackColor();
  void copyChanged(const std::vector<std::uint32_t>& from, std::vector<std::uint32_t>& to) const;

  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint32_t> pixels_;
  std::vector<std::uint32_t> picture_;
  bool hasPicture_ = false;
  // The back colour that undrawn pixels have while there is no picture.
  Color groundColor_ = kWhite;
  // The part of the drawing that may differ from the picture: only this part is copied by clearing and keeping.
  Area changed_;
};

}  // namespace gp
