// One source of the Icons List: how many icons there are, which files they come from, how one is drawn, and how one is
// fetched for a container.
#pragma once

#include "document/IconImage.h"
#include "extraction/ListCell.h"

#include <memory>
#include <optional>
#include <string>

namespace gp {

// What a click on a cell brings: an icon for a container, or the reason why there is none.
struct FetchedIcon {
  std::optional<IconImage> icon;
  const char* failure = "";  // follows the file's name on a line of the message

  FetchedIcon(IconImage fetched) : icon(std::move(fetched)) {}
  FetchedIcon(const char* reason) : failure(reason) {}
};

class IconSource {
 public:
  virtual ~IconSource() = default;
  virtual int count() const = 0;
  // The file of an entry: fileSpec.
  virtual std::string fileOf(int index) const = 0;
  // Before the cells of a panel are drawn. False when nothing can be drawn.
  virtual bool begin() { return true; }
  // True for a source whose icons all come from one file, which must still be there to be drawn.
  virtual bool isOneFile() const { return false; }
  // Label and picture of an entry. `valid` is false when it cannot be drawn.
  virtual ListCell cell(int index) = 0;
  virtual FetchedIcon fetch(int index) = 0;
  // True when an icon that cannot be fetched is shown as invalid from then on.
  virtual bool marksFailures() const { return false; }
  // The proposed path of a fetched icon.
  virtual std::string nameOf(int index) const;
};

// A source without icons, such as a file that could not be listed.
class EmptySource final : public IconSource {
 public:
  int count() const override { return 0; }
  std::string fileOf(int) const override { return {}; }
  ListCell cell(int) override { return {}; }
  FetchedIcon fetch(int) override { return ""; }
};

// A handle as a cell shows it, with `label`: on the ground of the list, at most 32 pixels wide.
ListCell drawnCell(const IconImage& handle, std::string label);
ListCell invalidCell(std::string label);
// Two blanks and the number of an entry, from 1.
std::string numberLabel(int index);
// The base name of a file, cut to `longest` characters, which ".." follows then.
std::string fileLabel(const std::string& path, int longest);
// Folder, separator and base name of a path.
std::string pathStem(const std::string& path);

}  // namespace gp
