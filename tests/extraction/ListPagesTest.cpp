#include "extraction/ListPages.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

constexpr int kMaximum = 300;

ListPages pagesOf(int entries) {
  ListPages pages;
  pages.fill(entries);
  return pages;
}

struct Case {
  int entries, panels, onFirst, onLast, pages;
  bool nextPage;
};

class ListPanels : public testing::TestWithParam<Case> {};

TEST_P(ListPanels, HoldFortyEightEntries) {
  const Case& c = GetParam();
  ListPages pages = pagesOf(c.entries);
  EXPECT_EQ(pages.panelCount(), c.panels);
  EXPECT_EQ(pages.mListOnPanel(), c.onFirst);
  EXPECT_EQ(pages.pageCount(), c.pages);
  EXPECT_EQ(pages.isNextPageVisible(), c.nextPage);
  EXPECT_EQ(pages.isNextPanelEnabled(), c.panels > 1);
  EXPECT_EQ(pages.currentPage(), c.entries > 0 ? 0 : -1);
  ASSERT_TRUE(pages.choosePanel(c.panels - 1));
  EXPECT_EQ(pages.mListOnPanel(), c.onLast);
}

INSTANTIATE_TEST_SUITE_P(Counts, ListPanels,
                         testing::Values(Case{0, 1, 0, 0, 0, false}, Case{1, 1, 1, 1, 1, false},
                                         Case{12, 1, 12, 12, 1, false}, Case{13, 1, 13, 13, 2, true},
                                         Case{48, 1, 48, 48, 4, true}, Case{49, 1, 48, 48, 4, true},
                                         Case{50, 2, 48, 2, 4, true}, Case{96, 2, 48, 48, 4, true},
                                         Case{97, 3, 48, 1, 4, true}, Case{10000, 209, 48, 16, 4, true}));

TEST(ListPages, NoListHasNoPanels) {
  const ListPages pages;
  EXPECT_EQ(pages.panelCount(), 0);
  EXPECT_EQ(pages.mListOnPanel(), 0);
  EXPECT_FALSE(pages.isNextPanelEnabled());
}

TEST(ListPages, APageIsAThirdOfTheWay) {
  ListPages pages = pagesOf(48);
  pages.showPage(2, 301);
  EXPECT_EQ(pages.scrollValue(), 200);
  EXPECT_EQ(pages.currentPage(), 2);
  pages.showPage(4, kMaximum);
  pages.showPage(-1, kMaximum);
  EXPECT_EQ(pages.currentPage(), 2);
}

TEST(ListPages, TheNextPageOfOnePanelComesBackToTheFirst) {
  ListPages pages = pagesOf(30);  // three pages
  for (const int page : {1, 2, 0, 1}) {
    EXPECT_FALSE(pages.nextPage(kMaximum));
    EXPECT_EQ(pages.currentPage(), page);
    EXPECT_EQ(pages.scrollValue(), page * 100);
  }
}

TEST(ListPages, TheNextPageGoesOnToTheNextPanel) {
  ListPages pages = pagesOf(50);
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(pages.nextPage(kMaximum));
  EXPECT_TRUE(pages.nextPage(kMaximum));
  EXPECT_EQ(pages.panelItem(), 1);
  EXPECT_EQ(pages.currentPage(), 0);
  EXPECT_EQ(pages.scrollValue(), 0);
  EXPECT_EQ(pages.firstEntry(), 48);
  EXPECT_TRUE(pages.nextPage(kMaximum));
  EXPECT_EQ(pages.panelItem(), 0);
}

TEST(ListPages, BetweenPagesTheNextOneIsThePageBelow) {
  ListPages pages = pagesOf(48);
  pages.scrollTo(130, kMaximum);
  EXPECT_EQ(pages.currentPage(), -1);
  EXPECT_FALSE(pages.nextPage(kMaximum));
  EXPECT_EQ(pages.currentPage(), 2);
  EXPECT_EQ(pages.scrollValue(), 200);
}

TEST(ListPages, TheScrollBarEndsAtItsMaximum) {
  ListPages pages = pagesOf(48);
  pages.scrollTo(400, kMaximum);
  EXPECT_EQ(pages.scrollValue(), kMaximum);
  pages.scrollTo(-5, kMaximum);
  EXPECT_EQ(pages.scrollValue(), 0);
  EXPECT_EQ(pages.currentPage(), -1);
}

TEST(ListPages, ABarThatDoesNotMoveKeepsThePage) {
  ListPages pages = pagesOf(48);
  pages.scrollTo(0, kMaximum);
  EXPECT_EQ(pages.currentPage(), 0);
}

TEST(ListPages, APageStaysWhenThePaneChangesItsSize) {
  ListPages pages = pagesOf(48);
  pages.showPage(2, kMaximum);
  pages.fit(600);
  EXPECT_EQ(pages.currentPage(), 2);
  EXPECT_EQ(pages.scrollValue(), 400);
  pages.scrollTo(500, 600);
  pages.fit(kMaximum);
  EXPECT_EQ(pages.currentPage(), -1);
  EXPECT_EQ(pages.scrollValue(), kMaximum);
}

TEST(ListPages, ANewPanelBeginsAtItsTop) {
  ListPages pages = pagesOf(100);
  pages.scrollTo(77, kMaximum);
  EXPECT_TRUE(pages.choosePanel(2));
  EXPECT_EQ(pages.scrollValue(), 0);
  EXPECT_EQ(pages.currentPage(), 0);
  EXPECT_FALSE(pages.choosePanel(3));
  EXPECT_FALSE(pages.choosePanel(-1));
  EXPECT_EQ(pages.panelItem(), 2);
  pages.nextPanel();
  EXPECT_EQ(pages.panelItem(), 0);
}

}  // namespace
}  // namespace gp
