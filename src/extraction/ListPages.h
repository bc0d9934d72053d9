// The panels and pages of the Icons List, and the part of a panel that is seen. A panel holds 48 entries and a page 12
// of them.
#pragma once

#include "extraction/ListGrid.h"

namespace gp {

class ListPages {
 public:
  // fillPanelList: the panels for so many entries, of which the first is chosen. A list of 49 entries has one panel,
  // which does not show the last one.
  void fill(int entries);
  void clear() { *this = ListPages(); }

  int entries() const { return entries_; }
  int panelCount() const { return panelCount_; }
  int panelItem() const { return panelItem_; }
  // The first entry of the panel, and mListOnPanel: how many it shows.
  int firstEntry() const { return panelItem_ * kCellsOnPanel; }
  int mListOnPanel() const;
  // The visible buttons of cmdPageRef.
  int pageCount() const;
  // -1 between pages.
  int currentPage() const { return currentPage_; }
  int scrollValue() const { return scrollValue_; }
  bool isNextPanelEnabled() const { return panelCount_ > 1; }
  bool isNextPageVisible() const { return panelCount_ > 1 || pageCount() > 1; }

  // Shows the first page of a panel. False when there is no such panel.
  bool choosePanel(int item);
  // The next panel; after the last one the first.
  void nextPanel() { choosePanel(panelItem_ + 1 < panelCount_ ? panelItem_ + 1 : 0); }
  // cmdPageRef: moves the scroll bar, whose largest value is `maximum`.
  void showPage(int page, int maximum);
  // cmdNextPage. True when it has gone on to the next panel.
  bool nextPage(int maximum);
  // The user moves the scroll bar: the view is between pages. mListBusy keeps the page while a button moves it.
  void scrollTo(int value, int maximum);
  // The scroll bar has another maximum: the page that is seen stays.
  void fit(int maximum);

 private:
  int pageBelow(int maximum) const;

  int entries_ = 0;
  int panelCount_ = 0;
  int panelItem_ = 0;
  int currentPage_ = -1;
  int scrollValue_ = 0;
};

}  // namespace gp
