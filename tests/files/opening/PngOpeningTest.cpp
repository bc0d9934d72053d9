// PNG images in the editor: opened, browsed, replaced and saved as bitmaps are.
#include "document/CurrentIcon.h"
#include "files/BrowserFixture.h"
#include "files/CursorBuilder.h"
#include "files/MultiIconReplaceFixture.h"
#include "files/PngEntries.h"
#include "files/browser/HeaderDiff.h"
#include "files/format/PngEntry.h"

namespace gp::test {
namespace {

Entry damagedPng(int size) {
  PngFile file = anyPng(size);
  file.hasRightDataCrc = false;
  return pngEntryOf(file);
}

Entry statedAs(Entry entry, int side, int colors, int bits) {
  entry.width = entry.height = side;
  entry.colorCount = colors;
  entry.bitCount = bits;
  return entry;
}

class PngOpening : public FilesTest {
 protected:
  PngOpening() { state.options.flagMessageIfAlpha = false; }

  void expectPng(int size) {
    const Decoded icon = decode(build(anyPngEntry(size)));
    EXPECT_TRUE(samePixels(state.picImage, icon.image));
    EXPECT_TRUE(samePixels(state.picMask, icon.mask));
    EXPECT_EQ(currentIcon(state).alpha, icon.alpha);
    EXPECT_TRUE(panelIsUpToDate());
    EXPECT_EQ(record().size, size);
    EXPECT_EQ(record().dirColors, -1);
    EXPECT_EQ(record().bitCount, 32);
    EXPECT_TRUE(record().hasAlpha && record().present && record().used);
    EXPECT_FALSE(record().isDiscrepant());
    EXPECT_EQ(record().sourceLabel.trimmed(), "ICO file");
  }
};

TEST_F(PngOpening, EachIconSizeOpensWithItsPixelsAndAlpha) {
  for (const int size : {16, 24, 32, 48}) {
    const std::string path = folder.write("p.ico", build(anyPngEntry(size)));
    EXPECT_TRUE(open(path));
    expectPng(size);
    EXPECT_EQ(record().path.trimmed(), path);
    EXPECT_FALSE(record().fromMultiIconFile);
  }
}

TEST_F(PngOpening, ADroppedFileOpensQuietly) {
  EXPECT_TRUE(openQuietly(folder.write("p.ico", build(statedAs(anyPngEntry(48), 32, 16, 4)))));
  expectPng(48);
}

TEST_F(PngOpening, TheAlphaReminderIsShown) {
  state.options.flagMessageIfAlpha = true;
  boxes.expectTold(
      "\nReminder:  The incoming icon is with Alpha Channel.  To view the icon with\n"
      "alpha effects, or to edit the alpha values, invoke the Alpha Channel screen.\n"
      "\n"
      "(To remove Reminder, untick the related Option submenu)",
      BoxIcon::Information);
  EXPECT_TRUE(open(folder.write("p.ico", build(anyPngEntry(32)))));
}

TEST_F(PngOpening, APictureWithoutAlphaOpensAsTrueColorOf24Bits) {
  EXPECT_TRUE(open(folder.write("p.ico", build(statedAs(anyPngEntry(32, png::kRgb), 32, 0, 32)))));
  EXPECT_EQ(record().bitCount, 24);
  EXPECT_FALSE(record().hasAlpha);
  EXPECT_TRUE(samePixels(state.picMask, Surface(32, 32, kBlack)));
}

TEST_F(PngOpening, ADamagedPictureFailsToLoadAndTheFormerIconStays) {
  const std::string before = given(anyEntry(48, 4));
  const std::string path = folder.write("p.ico", build(damagedPng(32)));
  boxes.expectTold(path + "\nFailed to load this file", BoxIcon::Exclamation);
  EXPECT_FALSE(open(path));
  EXPECT_FALSE(openQuietly(path));
  EXPECT_EQ(record().path.trimmed(), before);
  EXPECT_EQ(record().size, 48);
}

TEST_F(PngOpening, OfAFileWithADamagedPictureAnotherIconOpensQuietly) {
  EXPECT_TRUE(openQuietly(folder.write("p.ico", build(iconFile({damagedPng(32), anyPngEntry(32), anyEntry(16, 4)})))));
  expectPng(32);
  EXPECT_EQ(record().multiIconIndex, 1);
}

// Saving writes a bitmap: 32 bits, with an alpha of 0 where the icon is transparent.
TEST_F(PngOpening, SavingWritesABitmapOfTheSamePixels) {
  const std::string path = given(anyPngEntry(32), "p.ico");
  saver.doFileSave();
  const Bytes saved = bytesOf(path);
  EXPECT_EQ(saved.size(), 22u + 40 + 32 * 32 * 4 + 32 * 4);
  const Decoded before = decode(build(anyPngEntry(32))), after = decode(saved);
  EXPECT_TRUE(samePixels(after.image, before.image) && samePixels(after.mask, before.mask));
  EXPECT_EQ(after.alpha, before.alpha);
  EXPECT_EQ(record().bitCount, 32);
}

TEST_F(PngOpening, APixelThatIsPaintedWhereAlphaWasZeroIsOpaque) {
  const std::string path = given(anyPngEntry(32), "p.ico");
  ASSERT_EQ(anyAlpha(0, 0), 0);
  state.picImage.SetPixelV(0, 0, rgb(1, 2, 3));
  state.picMask.SetPixelV(0, 0, kBlack);
  saver.doFileSave();
  const Bytes saved = bytesOf(path);
  constexpr std::size_t kTopRow = 22 + 40 + 31 * 32 * 4;
  EXPECT_EQ(Bytes(saved.begin() + kTopRow, saved.begin() + kTopRow + 4), (Bytes{3, 2, 1, 255}));
}

TEST_F(PngOpening, ACursorOpensWithItsAlphaAndHotSpot) {
  CursorFile cursor = cursorOf(anyPicture(32, 32), 5, 31);
  cursor.image = build(anyPng(32));
  bool ok = false;
  files.cursorFiles.doOpenCursorFile(folder.write("c.cur", build(cursor)), ok);
  EXPECT_TRUE(ok);
  EXPECT_TRUE(samePixels(state.picImage, decode(build(anyPngEntry(32))).image));
  EXPECT_EQ(record().bitCount, 32);
  EXPECT_TRUE(record().hasAlpha && record().isCursor);
  EXPECT_EQ(record().hotspotX, 5);
  EXPECT_EQ(record().hotspotY, 31);
}

TEST_F(PngOpening, ACursorsSizeIsThatOfThePicture) {
  CursorFile cursor = cursorOf(anyPicture(32, 32), 5, 6);
  cursor.width = cursor.height = 48;
  cursor.image = build(anyPng(32));
  bool ok = false;
  files.cursorFiles.doOpenCursorFile(folder.write("c.cur", build(cursor)), ok);
  EXPECT_TRUE(ok);
  EXPECT_EQ(record().size, 32);
  cursor.width = cursor.height = 32;
  cursor.image = build(anyPng(48));
  const std::string path = folder.write("d.cur", build(cursor));
  boxes.expectTold(path + "\nInvalid cursor file", BoxIcon::Exclamation);
  files.cursorFiles.doOpenCursorFile(path, ok);
  EXPECT_FALSE(ok);
}

// The browser.

TEST_F(BrowserTest, PngPicturesAreListedAsTheyStateThemselves) {
  browse({statedAs(anyPngEntry(32), 16, 16, 4), statedAs(anyPngEntry(48, png::kRgb), 48, 0, 0),
          statedAs(anyPngEntry(64), 32, 0, 32), anyPngEntry(256)});
  EXPECT_EQ(browser->lisIcons(),
            (Items{"Ref 1  \t32 BPP\tTrue-Color\t   32 x  32", "Ref 2  \t24 BPP\tTrue-Color\t   48 x  48"}));
  EXPECT_EQ(browser->lisOtherIcons(),
            (Items{"Ref 3  \t32 BPP\tTrue-Color\t  64 x 64", "Ref 4  \t32 BPP\tTrue-Color\t  0 x 0"}));
  EXPECT_STREQ(browser->remark(), "");
}

TEST_F(BrowserTest, APngPictureIsPreviewedWithItsAlpha) {
  browse({anyEntry(16, 4), anyPngEntry(48)});
  browser->clickIcon(1);
  EXPECT_EQ(browser->selectedIcon(), 1);
  ASSERT_EQ(browser->picIconInFile().width(), 48);
  for (int y = 0; y < 48; ++y)
    for (int x = 0; x < 48; ++x) {
      const int percent = anyAlpha(x, y) * 100 / 255, red = anyRgba(x, y)[0];
      ASSERT_EQ(redOf(browser->picIconInFile().GetPixel(x, y)), ((100 - percent) * 192 + percent * red) / 100);
    }
}

TEST_F(BrowserTest, APngPictureIsLoaded) {
  browse({anyEntry(16, 4), statedAs(anyPngEntry(48), 16, 16, 4)});
  browser->clickIcon(1);
  browser->cmdEdit();
  EXPECT_EQ(exchange.gMultiIconResult, "3/01/48/48/-1/32/-1/32");
  const Decoded icon = decode(build(anyPngEntry(48)));
  EXPECT_TRUE(samePixels(exchange.chosenIcon.image, icon.image) && samePixels(exchange.chosenIcon.mask, icon.mask));
  EXPECT_EQ(exchange.chosenIcon.alpha, icon.alpha);
}

TEST_F(BrowserTest, APngPictureIsSavedAloneByteForByte) {
  const Entry entry = statedAs(anyPngEntry(32), 16, 16, 4);
  browse({anyEntry(16, 4), entry});
  browser->clickIcon(1);
  const std::string target = folder.path("alone.ico");
  dialogs.paths = {target};
  browser->cmdSaveSingle();
  EXPECT_EQ(bytesOf(target), build(entry));
}

TEST_F(BrowserTest, APngPictureIsRemovedAndTheOthersStay) {
  const Entry first = statedAs(anyPngEntry(32), 16, 16, 4), last = anyPngEntry(16);
  browse({first, anyPngEntry(48), last});
  browser->clickIcon(1);
  boxes.expectAsked("Permanently remove the selected icon from the multi-icon file.\n" + path +
                        "\n\nSure to remove this icon permanently?\n\n",
                    BoxAnswer::Yes);
  browser->cmdRemove();
  EXPECT_EQ(bytesOf(path), build(iconFile({first, last})));
}

TEST_F(BrowserTest, PngPicturesAreMoved) {
  const Entry first = statedAs(anyPngEntry(32), 16, 16, 4), last = anyPngEntry(16);
  browse({first, last});
  browser->cmdReposition();
  browser->cmdShiftDown();
  boxes.expectAsked(path + "\nProceed to save re-positioned sequence of icons in file?\n", BoxAnswer::Yes);
  boxes.expectTold("Repositioned icons sequence in " + path + "\n", BoxIcon::None);
  browser->cmdRepositionProceed();
  EXPECT_EQ(bytesOf(path), build(iconFile({last, first})));
}

// Replacing.

TEST_F(MultiIconReplaceTest, OfAllPngPicturesTheOthersStayByteForByte) {
  const Entry first = statedAs(anyPngEntry(16), 24, 16, 4), last = anyPngEntry(48);
  const IcoFile all = fileOf({first, statedAs(anyPngEntry(32), 16, 0, 0), last});
  const std::string path = givenEntry(all, 1);
  mark();
  replaceOnto(path, 2);
  const Bytes saved = bytesOf(path);
  IconArrays arrays;
  ASSERT_EQ(readIconArrays(path, ReservedField::MustBeZero, arrays), ArraysDefect::None);
  EXPECT_EQ(Bytes(arrays.images[0].begin(), arrays.images[0].end()), first.image);
  EXPECT_EQ(Bytes(arrays.images[2].begin(), arrays.images[2].end()), last.image);
  EXPECT_EQ(arrays.entries[0].width, 24);
  EXPECT_EQ(arrays.entries[0].bitCount, 4);
  EXPECT_EQ(arrays.entries[1].width, 32) << "the size of the icon, not the one that was stated";
  EXPECT_EQ(arrays.entries[1].bitCount, 32);
  EXPECT_EQ(arrays.entries[1].colorCount, 0);
  const Decoded icon = decode(saved, 1);
  EXPECT_EQ(icon.image.GetPixel(1, 0), colorOf(kMark));
  EXPECT_EQ(icon.image.GetPixel(5, 5), decode(build(anyPngEntry(32))).image.GetPixel(5, 5));
  EXPECT_FALSE(record().modified);
}

TEST_F(MultiIconReplaceTest, APngPictureOfTheSameSizeAndDepthIsFoundWhateverItsEntryStates) {
  const IcoFile file = fileOf({statedAs(anyPngEntry(48), 16, 16, 4), anyPngEntry(32)});
  const std::string path = givenEntry(file, 1);
  state.current().size = 48;
  EXPECT_TRUE(openQuietly(folder.write("alone.ico", build(anyPngEntry(48)))));
  record().path = path;
  record().fromMultiIconFile = true;
  record().multiIconIndex = 1;
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  boxes.expectTold(sameIcon("True Color 32 BPP 48 x 48"), BoxIcon::None);
  replace();
  EXPECT_EQ(bytesOf(path), build(file));
}

// The header form.

class PngHeaders : public FilesTest {
 protected:
  std::unique_ptr<HeaderDiff> diff;

  std::vector<std::string> textsOf(const Entry& entry) {
    exchange.gMultiIconFile = folder.write("p.ico", build(entry));
    diff = std::make_unique<HeaderDiff>(files.context());
    diff->activate();
    const EnquiryTable& t = diff->table();
    return {t.lblIDEColor, t.lblIDEBPP, t.lblBIHColor, t.lblBIHBPP, t.lblActualColor, t.lblActualBPP};
  }
};

TEST_F(PngHeaders, PngTakesThePlaceOfTheBitmapHeader) {
  using Texts = std::vector<std::string>;
  EXPECT_EQ(textsOf(anyPngEntry(32)), (Texts{"True", "32", "PNG", "32", "True", "32"}));
  EXPECT_EQ(textsOf(statedAs(anyPngEntry(48, png::kRgb), 16, 16, 4)), (Texts{"16", "4", "PNG", "24", "True", "24"}));
  EXPECT_EQ(diff->lisIcons(), (Texts{"1\t4-BPP\t16-Color\t16 x 16"})) << "what the directory states";
  EXPECT_EQ(diff->picIconInFile().width(), 48);
  EXPECT_EQ(diff->picIconInFile().height(), 48);
}

// The form shows image and Mask only.
TEST_F(PngHeaders, PixelsBelowAnAlphaOf128AreShownTransparent) {
  textsOf(anyPngEntry(48));
  const IconImage plain = withoutAlpha(decode(build(anyPngEntry(48))));
  EXPECT_TRUE(samePixels(diff->picIconInFile(), onGround(plain.image, plain.mask)));
}

}  // namespace
}  // namespace gp::test
