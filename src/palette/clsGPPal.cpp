#include "palette/clsGPPal.h"

#include "palette/ColorTree.h"
#include "platform/gdi/NearestColor.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace gp {
namespace {

constexpr std::size_t kFullTable = 256;
constexpr std::array<Color, 2> kMonoPalette{kBlack, kWhite};

std::uint8_t mean(int sum, int count) {
  return static_cast<std::uint8_t>(roundToByte(static_cast<double>(sum) / count));
}

void addPicture(const clsGPDIB& dib, int maxColors, ColorTree& tree) {
  for (const DibPixel pixel : dib.DIBBitsPtr()) {
    tree.AddColor(pixel.red, pixel.green, pixel.blue);
    while (tree.leafCount() > maxColors && tree.ReduceTree()) {
    }
  }
}

}  // namespace

void clsGPPal::InitializePalette() {
  mPalette.assign(kFullTable, {});
  maxCount_ = 0;
}

void clsGPPal::ClearUp() {
  mPalette.clear();
  hPal_.clear();
  maxCount_ = 0;
}

void clsGPPal::setColors(std::span<const Color> colors) {
  mPalette.resize(colors.size());
  std::ranges::transform(colors, mPalette.begin(), dibPixel);
  MakeHPal();
}

void clsGPPal::CreatePalette2() { setColors(kMonoPalette); }
void clsGPPal::CreatePalette16() { setColors(kStandardPalette); }

void clsGPPal::CreateGrays_256() {
  std::array<Color, kFullTable> grays;
  for (std::size_t i = 0; i < grays.size(); ++i) {
    const int level = static_cast<int>(i);
    grays[i] = rgb(level, level, level);
  }
  setColors(grays);
}

// Entries are in the order of the tree's nodes, which is not the order of the colours.
void clsGPPal::CreateOptimal(const clsGPDIB& dib, int maxColors, int levels) {
  ColorTree tree(levels);
  addPicture(dib, maxColors, tree);
  InitializePalette();
  for (const ColorTreeNodeRec& node : tree.nodes()) {
    if (!node.isLeaf) continue;
    DibPixel& entry = mPalette.at(static_cast<std::size_t>(maxCount_++));
    entry.red = mean(node.sumR, node.pixelCount);
    entry.green = mean(node.sumG, node.pixelCount);
    entry.blue = mean(node.sumB, node.pixelCount);
  }
  MakeHPal();
}

void clsGPPal::MakeHPal() {
  hPal_.resize(mPalette.size());
  std::ranges::transform(mPalette, hPal_.begin(), colorOf);
}

std::uint8_t clsGPPal::NearestPaletteIndex(std::uint8_t red, std::uint8_t green, std::uint8_t blue) const {
  return static_cast<std::uint8_t>(std::max(0, GetNearestPaletteIndex(hPal_, rgb(red, green, blue))));
}

bool clsGPPal::IsGreyScale() const {
  // A fixed table created after CreateOptimal may be shorter.
  const auto filled = std::span(mPalette).first(static_cast<std::size_t>(std::min(maxCount_, Count())));
  return !filled.empty() && std::ranges::all_of(filled, [](DibPixel entry) {
    return entry.red == entry.green && entry.green == entry.blue;
  });
}

}  // namespace gp
