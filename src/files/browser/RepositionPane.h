// The pane of the browser that reorders the entries of a file: a list of item texts that the user moves up and down.
// Writing is done by the browser.
#pragma once

#include <string>
#include <vector>

namespace gp {

class RepositionPane {
 public:
  // Sets the padded item texts of all entries in file order, and selects the first.
  void open(std::vector<std::string> items);

  const std::vector<std::string>& lisReposition() const { return items_; }
  int selected() const { return selected_; }  // -1 for none
  void select(int item) { selected_ = item; }
  bool canShiftUp() const;
  bool canShiftDown() const;
  // Moves the selected item by one place. Does nothing at the end of the list.
  void shiftUp();
  void shiftDown();

  // The index in the file of the entry at each place, parsed from the item texts.
  std::vector<int> order() const;
  bool isUnchanged() const;

 private:
  void moveTo(int place);

  std::vector<std::string> items_;
  int selected_ = -1;
};

}  // namespace gp
