// The colour tree that makes an optimal palette. It splits the colour cube at the midpoints of ever smaller boxes; the
// boxes of the last level are its leaves, and the first colour to reach a leaf stands for all that follow. When there
// are too many leaves, the node listed last on the deepest level is folded into one. It owns its nodes, in one array.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace gp {

struct ColorTreeNodeRec {
  bool isLeaf = false;
  bool inReducible = false;
  int sumR = 0, sumG = 0, sumB = 0;
  int pixelCount = 0;             // samples of a leaf, children of an inner node
  std::array<int, 8> children{};  // by halves: bit 0 red, bit 1 green, bit 2 blue; 0 for none
  int nextLink = 0;               // on a list of reducible or of free nodes
};

class ColorTree {
 public:
  // 1 to 8 levels; others are limited to these.
  explicit ColorTree(int levels);

  void AddColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
  // Folds one node. False when there is none to fold.
  bool ReduceTree();
  int leafCount() const { return mLeafCount; }
  // All nodes, those that are not in use included; node 0 is none and node 1 the root. Palettes follow this order.
  const std::vector<ColorTreeNodeRec>& nodes() const { return mTree; }

 private:
  static constexpr int kMaxLevels = 8;

  int childOf(int node, std::size_t half, int level);
  void addSample(ColorTreeNodeRec& leaf, int red, int green, int blue);
  void list(int node, int level);
  int NewNode();
  void FreeNode(int node);
  ColorTreeNodeRec& at(int node) { return mTree[static_cast<std::size_t>(node)]; }

  std::vector<ColorTreeNodeRec> mTree;
  int mNodeCount = 1;
  int mLevels;
  int mFreeHead = 0;
  int mLeafCount = 0;
  std::array<int, kMaxLevels + 1> mReducible{};  // by level, from 1
};

}  // namespace gp
