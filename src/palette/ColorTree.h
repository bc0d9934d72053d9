// The colour tree that computes an optimal palette. It splits the colour cube at the midpoints of ever smaller boxes.
// The boxes of the last level are its leaves; the first colour that reaches a leaf represents all later ones. When
// there are too many leaves, the node listed last on the deepest level becomes a leaf. The tree owns its nodes, in one
// array.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace gp {

struct ColorTreeNodeRec {
  bool isLeaf = false;
  bool inReducible = false;
  int sumR = 0, sumG = 0, sumB = 0;
  int pixelCount = 0;             // samples of a leaf, or children of an inner node
  std::array<int, 8> children{};  // by halves: bit 0 red, bit 1 green, bit 2 blue; 0 for no child
  int nextLink = 0;               // the next node on a list of reducible or free nodes
};

class ColorTree {
 public:
  // Takes 1 to 8 levels; other values are limited to this range.
  explicit ColorTree(int levels);

  void AddColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
  // Folds one node. Returns false when there is none to fold.
  bool ReduceTree();
  int leafCount() const { return mLeafCount; }
  // Returns all nodes, including unused ones; node 0 is none and node 1 the root. Palettes have this order.
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
