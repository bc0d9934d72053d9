#include "palette/MonoDiffusion.h"

#include <algorithm>
#include <array>
#include <vector>

namespace gp {
namespace {

constexpr std::uint8_t kDark = 0;
constexpr std::uint8_t kLight = 255;
constexpr int kUndamped = 10;
constexpr int kKernelRows = 3;
constexpr int kChannels = 3;

constexpr DiffusionShare kStuckiShares[] = {{1, 0, 8}, {2, 0, 4},  {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4},
                                            {2, 1, 2}, {-2, 2, 1}, {-1, 2, 2}, {0, 2, 4},  {1, 2, 2}, {2, 2, 1}};
constexpr DiffusionShare kBurkesShares[] = {{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4},
                                            {0, 1, 8}, {1, 1, 4}, {2, 1, 2}};

// Thresholds by row and column from the bottom left corner, each modulo 4.
constexpr int kMatrixSide = 4;
constexpr int kMatrix[kMatrixSide][kMatrixSide] = {{1, 13, 4, 16}, {9, 5, 12, 8}, {3, 15, 2, 14}, {11, 7, 10, 6}};
constexpr int kOrderedStep = 16;

int brightnessOf(DibPixel pixel) { return (pixel.blue + pixel.green + pixel.red) / kChannels; }

DibPixel mono(bool light) {
  const std::uint8_t level = light ? kLight : kDark;
  return {level, level, level, 0};
}

// Returns each share of each possible error, so that no pixel needs a division.
std::vector<int> shareTable(const DiffusionKernel& kernel) {
  std::vector<int> table;
  for (int error = -kLight; error <= kLight; ++error)
    for (const DiffusionShare& share : kernel.shares) table.push_back(error * share.weight / kernel.divisor);
  return table;
}

// The errors of the current row and of the following rows.
class ErrorRows {
 public:
  ErrorRows(int width, int height, const DiffusionKernel& kernel)
      : width_(width), height_(height), kernel_(kernel), shares_(shareTable(kernel)) {
    for (auto& row : rows_) row.assign(static_cast<std::size_t>(width), 0);
  }
  int at(int x) const { return rows_[0][static_cast<std::size_t>(x)]; }
  void spread(int x, int y, int error) {
    const int* amount = &shares_[static_cast<std::size_t>(error + kLight) * kernel_.shares.size()];
    for (const DiffusionShare& share : kernel_.shares) {
      const int passedOn = *amount++;
      const int to = x + share.dx;
      const bool hasRow = share.dy == 0 || y + share.dy + kernel_.spareRows < height_;
      if (to < 0 || to >= width_ || !hasRow) continue;
      rows_[static_cast<std::size_t>(share.dy)][static_cast<std::size_t>(to)] += passedOn;
    }
  }
  void nextRow() {
    std::rotate(rows_.begin(), rows_.begin() + 1, rows_.end());
    std::ranges::fill(rows_.back(), 0);
  }

 private:
  int width_, height_;
  const DiffusionKernel& kernel_;
  const std::vector<int> shares_;
  std::array<std::vector<int>, kKernelRows> rows_;
};

}  // namespace

const DiffusionKernel kStucki{kStuckiShares, 42, 1};
const DiffusionKernel kBurkes{kBurkesShares, 32, 0};

int meanBrightness(const clsGPDIB& dib) {
  if (dib.isEmpty()) return 0;
  std::int64_t sum = 0;
  for (const DibPixel pixel : dib.DIBBitsPtr()) sum += brightnessOf(pixel);
  return static_cast<int>(sum / (std::int64_t{dib.DIBWidth()} * dib.DIBHeight()));
}

void diffuseToMono(clsGPDIB& dib, const DiffusionKernel& kernel, int damping) {
  if (dib.isEmpty()) return;
  const int threshold = meanBrightness(dib);
  ErrorRows errors(dib.DIBWidth(), dib.DIBHeight(), kernel);
  for (int y = 0; y < dib.DIBHeight(); ++y, errors.nextRow()) {
    const std::span<DibPixel> row = dib.row(y);
    for (int x = 0; x < dib.DIBWidth(); ++x) {
      DibPixel& pixel = row[static_cast<std::size_t>(x)];
      const int value = std::clamp(brightnessOf(pixel) + errors.at(x) * kUndamped / damping, int{kDark}, int{kLight});
      pixel = mono(value >= threshold);
      errors.spread(x, y, value - pixel.red);
    }
  }
}

void ditherWeighted(clsGPDIB& dib) { diffuseToMono(dib, kBurkes, kMonoDamping); }

void ditherOrdered(clsGPDIB& dib) {
  for (int y = 0; y < dib.DIBHeight(); ++y) {
    const std::span<DibPixel> row = dib.row(y);
    for (int x = 0; x < dib.DIBWidth(); ++x) {
      DibPixel& pixel = row[static_cast<std::size_t>(x)];
      pixel = mono(brightnessOf(pixel) / kOrderedStep + 1 >= kMatrix[y % kMatrixSide][x % kMatrixSide]);
    }
  }
}

}  // namespace gp
