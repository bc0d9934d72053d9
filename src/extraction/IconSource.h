// One source of the Icons List: how many icons there are, what they are called, and how one is drawn and loaded.
#pragma once

#include "document/IconImage.h"
#include "platform/gdi/Surface.h"

#include <optional>
#include <string>

namespace gp {

struct ListCell;

class IconSource {
 public:
  virtual ~IconSource() = default;
  virtual int count() const = 0;
  // The file of an icon: fileSpec.
  virtual std::string fileOf(int index) const = 0;
  // Label and picture of an icon. `valid` is false when it cannot be drawn.
  virtual ListCell cell(int index) const = 0;
};

}  // namespace gp
