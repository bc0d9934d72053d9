#include "palette/ColorTree.h"

#include "platform/text/Numbers.h"

#include <algorithm>
#include <utility>

namespace gp {
namespace {

constexpr std::size_t kFirstNodes = 50;
constexpr double kGrowth = 1.1;
constexpr int kRoot = 1;
constexpr int kChannelValues = 256;
constexpr int kChannels = 3;
constexpr int kSplits = 8;
constexpr std::uint32_t kHalfBits = 7;

// Returns the integer nearest to the middle of two; the even one when two are equally near.
constexpr int midpoint(int min, int max) {
  const int sum = min + max;
  const int below = sum / 2;
  return sum % 2 != 0 && below % 2 != 0 ? below + 1 : below;
}

// Returns which half of each box a channel's value is in, the first box in the lowest bit, with gaps for the bits of
// the other two channels. 0 is the lower half, which includes the midpoint.
constexpr std::uint32_t halvesOf(int value) {
  std::uint32_t halves = 0;
  int min = 0;
  int max = kChannelValues - 1;
  for (int split = 0; split < kSplits; ++split) {
    const int mid = midpoint(min, max);
    const bool upper = value > mid;
    (upper ? min : max) = mid;
    if (upper) halves |= 1U << split * kChannels;
  }
  return halves;
}

constexpr auto kHalves = [] {
  std::array<std::uint32_t, kChannelValues> all{};
  for (int value = 0; value < kChannelValues; ++value) all[static_cast<std::size_t>(value)] = halvesOf(value);
  return all;
}();

}  // namespace

ColorTree::ColorTree(int levels) : mTree(kFirstNodes + 1), mLevels(std::clamp(levels, 1, kMaxLevels)) {}

void ColorTree::AddColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  std::uint32_t halves = kHalves[red] | kHalves[green] << 1 | kHalves[blue] << 2;
  int child = childOf(kRoot, halves & kHalfBits, 1);
  for (int level = 1; !at(child).isLeaf; ++level) {
    list(child, level);
    halves >>= kChannels;
    child = childOf(child, halves & kHalfBits, level + 1);
  }
  addSample(at(child), red, green, blue);
}

int ColorTree::childOf(int node, std::size_t half, int level) {
  if (const int child = at(node).children[half]) return child;
  const int made = NewNode();
  at(node).children[half] = made;
  ++at(node).pixelCount;
  ColorTreeNodeRec& child = at(made);
  child.isLeaf = level == mLevels;
  child.pixelCount = child.sumR = child.sumG = child.sumB = child.nextLink = 0;
  return made;
}

void ColorTree::list(int node, int level) {
  if (at(node).inReducible) return;
  at(node).inReducible = true;
  at(node).nextLink = std::exchange(mReducible[static_cast<std::size_t>(level)], node);
}

// A leaf stores only its first colour.
void ColorTree::addSample(ColorTreeNodeRec& leaf, int red, int green, int blue) {
  if (leaf.pixelCount != 0) return;
  ++mLeafCount;
  ++leaf.pixelCount;
  leaf.sumR += red;
  leaf.sumG += green;
  leaf.sumB += blue;
}

bool ColorTree::ReduceTree() {
  std::size_t level = static_cast<std::size_t>(mLevels);
  while (level > 0 && mReducible[level] == 0) --level;
  if (level == 0) return false;
  ColorTreeNodeRec& folded = at(mReducible[level]);
  mReducible[level] = folded.nextLink;
  ColorTreeNodeRec total;
  for (int& child : folded.children) {
    if (child == 0) continue;
    const ColorTreeNodeRec& leaf = at(child);
    total.sumR += leaf.sumR;
    total.sumG += leaf.sumG;
    total.sumB += leaf.sumB;
    total.pixelCount += leaf.pixelCount;
    FreeNode(std::exchange(child, 0));
    --mLeafCount;
  }
  ++mLeafCount;
  folded.isLeaf = true;
  folded.sumR = total.sumR;
  folded.sumG = total.sumG;
  folded.sumB = total.sumB;
  folded.pixelCount = total.pixelCount;
  return true;
}

int ColorTree::NewNode() {
  ++mNodeCount;
  if (mFreeHead == 0) {
    if (static_cast<std::size_t>(mNodeCount) >= mTree.size())
      mTree.resize(static_cast<std::size_t>(roundToInteger(mNodeCount * kGrowth)) + 1);
    return mNodeCount;
  }
  const int node = mFreeHead;
  mFreeHead = at(node).nextLink;
  at(node).children = {};
  return node;
}

void ColorTree::FreeNode(int node) {
  at(node).nextLink = std::exchange(mFreeHead, node);
  at(node).isLeaf = at(node).inReducible = false;
  --mNodeCount;
}

}  // namespace gp
