#include "document/Magnifier.h"

#include "document/PatternCells.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/SurfaceOps.h"

#include <algorithm>
#include <span>
#include <vector>

namespace gp {

namespace {

constexpr Color kPatternLines = 0x606060;

using Row = std::vector<std::uint32_t>;

// Each pixel of an icon row `factor` times.
void widen(std::span<const std::uint32_t> pixels, int factor, Row& wide) {
  auto to = wide.begin();
  for (const std::uint32_t pixel : pixels) to = std::fill_n(to, factor, pixel);
}

// Every `factor`th pixel of a row but the first: where vertical lines are.
void andLines(std::uint32_t* row, int width, int factor, std::uint32_t color) {
  for (int x = factor; x < width; x += factor) row[x] &= color;
}

// Makes the rows of a magnified icon, one after the other from the top.
class RowMaker {
 public:
  RowMaker(const Surface& image, const Surface& mask, int factor, const Grid& grid)
      : image_(image),
        mask_(mask),
        factor_(factor),
        grid_(grid),
        color_(storedForm(grid.color)),
        width_(image.width() * factor),
        groundHeight_(grid.kind == GridKind::Pattern ? kPatternCellSize : 1),
        ground_(groundOf(width_, groundHeight_, grid)),
        wideImage_(static_cast<std::size_t>(width_)),
        wideMask_(wideImage_) {}

  // The rows of the cells in icon row y, at the start of `factor` rows of a picture that is `stride` pixels wide.
  void makeCells(int y, std::uint32_t* rows, std::ptrdiff_t stride) {
    widen(image_.row(y), factor_, wideImage_);
    widen(mask_.row(y), factor_, wideMask_);
    for (int i = 0; i < factor_; ++i, rows += stride) makeRow(y * factor_ + i, rows, i == 0 ? nullptr : rows - stride);
    if (y > 0) addHorizontalLine(rows - factor_ * stride);
  }

 private:
  // Without a pattern all rows of a cell are the same until the horizontal line is added to the first one.
  void makeRow(int row, std::uint32_t* to, const std::uint32_t* above) const {
    if (above && groundHeight_ == 1) {
      std::copy_n(above, width_, to);
      return;
    }
    const std::uint32_t* ground = ground_.row(row % groundHeight_).data();
    for (int x = 0; x < width_; ++x) to[x] = (ground[x] & wideMask_[x]) ^ wideImage_[x];
    if (grid_.hasLines()) andLines(to, width_, factor_, color_);
  }

  void addHorizontalLine(std::uint32_t* row) const {
    if (grid_.kind == GridKind::Dots) andLines(row, width_, factor_, color_);
    if (!grid_.hasLines()) return;
    for (int x = 0; x < width_; ++x) row[x] &= color_;
  }

  const Surface& image_;
  const Surface& mask_;
  const int factor_;
  const Grid grid_;
  const std::uint32_t color_;
  const int width_;
  const int groundHeight_;  // after which it repeats
  const Surface ground_;
  Row wideImage_, wideMask_;
};

}  // namespace

Grid gridOf(Color gGridColor) {
  if (gGridColor == kNoGrid) return {};
  if (gGridColor < 0) return {GridKind::Pattern, kPatternLines, kFirstPattern - gGridColor};
  return {gGridColor == kDottedGrid ? GridKind::Dots : GridKind::Lines, gGridColor};
}

void drawMagnified(const Surface& image, const Surface& mask, int factor, const Grid& grid, Surface& target) {
  RowMaker maker(image, mask, factor, grid);
  const int width = image.width() * factor;
  std::uint32_t* rows = target.rowsForWriting(0, image.height() * factor, 0, width);
  for (int y = 0; y < image.height(); ++y, rows += static_cast<std::ptrdiff_t>(factor) * target.width())
    maker.makeCells(y, rows, target.width());
}

Surface magnified(const Surface& image, const Surface& mask, int factor, const Grid& grid) {
  Surface result(image.width() * factor, image.height() * factor);
  drawMagnified(image, mask, factor, grid, result);
  result.makePersistent();
  return result;
}

Surface enlarged(const Surface& picture, int factor) {
  Surface result(picture.width() * factor, picture.height() * factor);
  StretchbltPic(picture, result, false);
  return result;
}

Surface gridAlone(int width, int height, int factor, const Grid& grid) {
  Surface picture(width * factor, height * factor, kWhite);
  if (grid.hasLines()) {
    for (int x = factor; x < picture.width(); x += factor) FillBox(picture, x, 0, x, picture.height() - 1, grid.color);
    for (int y = factor; y < picture.height(); y += factor) FillBox(picture, 0, y, picture.width() - 1, y, grid.color);
  } else if (grid.kind == GridKind::Dots) {
    for (int y = factor; y < picture.height(); y += factor)
      for (int x = factor; x < picture.width(); x += factor) picture.SetPixelV(x, y, grid.color);
  }
  return picture;
}

Surface groundOf(int width, int height, const Grid& grid) {
  Surface ground(width, height, kGround);
  if (grid.kind == GridKind::Pattern) TilePicture(patternCell(grid.pattern), ground);
  ground.makePersistent();
  return ground;
}

}  // namespace gp
