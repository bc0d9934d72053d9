#include "extraction/ListPages.h"

#include <algorithm>

namespace gp {

void ListPages::fill(int entries) {
  clear();
  entries_ = entries;
  // Intended: only a last index above 48 gives a second panel.
  const bool isOnePanel = entries - 1 <= kCellsOnPanel;
  panelCount_ = isOnePanel ? 1 : (entries + kCellsOnPanel - 1) / kCellsOnPanel;
  choosePanel(0);
}

int ListPages::mListOnPanel() const { return std::clamp(entries_ - firstEntry(), 0, kCellsOnPanel); }

int ListPages::pageCount() const { return (mListOnPanel() + kCellsOnPage - 1) / kCellsOnPage; }

bool ListPages::choosePanel(int item) {
  if (item < 0 || item >= panelCount_) return false;
  panelItem_ = item;
  scrollValue_ = 0;
  currentPage_ = pageCount() > 0 ? 0 : -1;
  return true;
}

void ListPages::showPage(int page, int maximum) {
  if (page < 0 || page >= pageCount()) return;
  currentPage_ = page;
  scrollValue_ = maximum / (kListPages - 1) * page;
}

// The page that begins below the top of the view.
int ListPages::pageBelow(int maximum) const {
  if (currentPage_ >= 0) return currentPage_ + 1;
  const int pageHeight = std::max(maximum / (kListPages - 1), 1);
  return scrollValue_ / pageHeight + 1;
}

bool ListPages::nextPage(int maximum) {
  const int next = pageBelow(maximum);
  if (next < pageCount()) {
    showPage(next, maximum);
    return false;
  }
  if (isNextPanelEnabled()) {
    nextPanel();
    return true;
  }
  showPage(0, maximum);
  return false;
}

void ListPages::scrollTo(int value, int maximum) {
  const int within = std::clamp(value, 0, maximum);
  if (within == scrollValue_) return;
  scrollValue_ = within;
  currentPage_ = -1;
}

void ListPages::fit(int maximum) {
  if (currentPage_ >= 0)
    showPage(currentPage_, maximum);
  else
    scrollValue_ = std::min(scrollValue_, maximum);
}

}  // namespace gp
