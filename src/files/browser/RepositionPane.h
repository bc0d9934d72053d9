// The pane of the browser that puts the entries of a file into another sequence: a list of item texts that are moved up
// and down. It changes its own list only; writing is the browser's.
#pragma once

#include <string>
#include <vector>

namespace gp {

class RepositionPane {
 public:
  // Takes the padded item texts of all entries in file order; the first is selected.
  void open(std::vector<std::string> items);

  const std::vector<std::string>& lisReposition() const { return items_; }
  int selected() const { return selected_; }  // -1 for none
  void select(int item) { selected_ = item; }
  bool canShiftUp() const;
  bool canShiftDown() const;
  // Moves the selected item one place; at the end of the list nothing happens.
  void shiftUp();
  void shiftDown();

  // The file's index of the entry at each place, as the item texts tell.
  std::vector<int> order() const;
  bool isUnchanged() const;

 private:
  void moveTo(int place);

  std::vector<std::string> items_;
  int selected_ = -1;
};

}  // namespace gp
