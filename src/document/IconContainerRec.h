// The description of the icon in one of the six containers. The fields are in the order in which commands clear them. A
// record is empty (not used), reserved by a loader (used, not present) or loaded (both).
#pragma once

#include "document/ColorDepth.h"
#include "document/EntryOrigin.h"
#include "document/IconSizes.h"
#include "platform/text/FixedText.h"
#include "platform/text/TrimmedText.h"

#include <cstdint>

namespace gp {

inline constexpr int kContainerCount = 6;

struct IconContainerRec {
  std::int16_t seq = 0;
  bool used = false;
  FixedText<32> sourceLabel;
  std::int32_t dirColors = 0;
  std::int16_t bitCount = 0;
  bool hasAlpha = false;
  std::int32_t bihColors = 0;
  std::int16_t bihBitCount = 0;
  bool present = false;
  std::int16_t size = kDefaultIconSize;
  TrimmedText path;  // in full: a shortened path would be that of another file
  bool fromMultiIconFile = false;
  std::int16_t multiIconIndex = 0;
  bool isCursor = false;
  std::int16_t hotspotX = 0;
  std::int16_t hotspotY = 0;
  bool neverSaved = false;
  bool modified = false;
  EntryOrigin origin;  // of an icon from a file with several; zeros for others

  // By the directory of the original file, and by its bitmap header.
  ColorDepth depth() const { return {dirColors, bitCount}; }
  ColorDepth headerDepth() const { return {bihColors, bihBitCount}; }
  void setDepth(ColorDepth depth);
  void setHeaderDepth(ColorDepth depth);
  bool isDiscrepant() const { return depth() != headerDepth(); }
  bool isTrueColor() const { return depth().isTrueColor(); }
  // True for an icon with an alpha channel.
  bool isAlphaIcon() const { return used && hasAlpha && depth().hasAlpha(); }
  // Sets the fields from fromMultiIconFile on to zero.
  void clearOrigin();
};

}  // namespace gp
