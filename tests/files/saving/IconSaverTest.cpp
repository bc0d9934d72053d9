#include "files/FilesFixture.h"
#include "platform/files/FileLock.h"
#include "platform/files/Files.h"
#include "platform/files/SystemCalls.h"

#include <filesystem>
#include <fstream>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kReadOnly =
    "File is read-only\n\nYou may save it under a different file name or reset the file attributes.";
constexpr const char* kBitmapQuestion = "Background color used will be the currently selected color.\nOK?\n";

class IconSaverTest : public FilesTest {
 protected:
  bool save(const std::string& path) {
    bool ok = false;
    saver.doSaveIconTo(path, ok);
    return ok;
  }
  bool proceeds(const std::string& message = "") {
    bool proceed = false;
    saver.AskSaveCurrent(message, proceed);
    return proceed;
  }
  // The name that Save As proposes for a path.
  std::string offered(const std::string& path, SaveMode mode) {
    record().path = path;
    return saver.proposedName(mode);
  }
  void copyFromContainer2(const std::string& path);
  static std::string holds(int container) {
    return "Container " + std::to_string(container) + " holds an icon of this file.\nProceed?";
  }
  // A pixel of a bitmap file of any depth; (0, 0) is the top left one.
  Color bitmapPixel(const std::string& path, int x, int y) {
    const Bytes b = bytesOf(path);
    const int bits = b[28], size = record().size;
    const std::size_t pixels = b[10] + 256U * b[11];
    const std::size_t row = pixels + static_cast<std::size_t>((size * bits + 31) / 32 * 4 * (size - 1 - y));
    std::size_t at = row + static_cast<std::size_t>(x * bits / 8);
    if (bits <= 8) at = 54 + 4 * static_cast<std::size_t>(b[at] >> (8 - bits - x * bits % 8) & ((1 << bits) - 1));
    return rgb(b[at + 2], b[at + 1], b[at]);
  }
};

TEST_F(IconSaverTest, A256ColorIconThatHoldsSixteenColorsSavesAs4Bits) {
  const std::string path = given(entryOf(anyPicture(32, 8)));
  state.picImage.fill(0x0000FF);
  EXPECT_TRUE(save(path));
  EXPECT_EQ(bytesOf(path)[12], 4);
  EXPECT_EQ(bytesOf(path)[8], 16);
  EXPECT_EQ(record().dirColors, 16);
  EXPECT_EQ(record().bitCount, 4);
}

TEST_F(IconSaverTest, ATrueColorIconStaysTrueColorWithTwoColorsOnIt) {
  const std::string path = given(entryOf(anyPicture(32, 24)));
  state.picImage.fill(kWhite);
  EXPECT_TRUE(save(path));
  EXPECT_EQ(bytesOf(path)[12], 24);
  EXPECT_EQ(record().dirColors, -1);
  EXPECT_EQ(record().bitCount, 24);
}

TEST_F(IconSaverTest, ABlackAndWhiteIconOf16ColorsSavesAs1Bit) {
  const std::string path = given(entryOf(anyPicture(32, 4)));
  state.picImage.fill(kWhite);
  EXPECT_TRUE(save(path));
  EXPECT_EQ(bytesOf(path)[8], 2);
  EXPECT_EQ(bytesOf(path)[12], 1);
}

TEST_F(IconSaverTest, TooManyColorsForAPaletteSaveInTrueColorAndTheRecordTells) {
  const std::string path = given(entryOf(anyPicture(32, 8)));
  for (int i = 0; i < 32 * 32; ++i) state.picImage.SetPixelV(i % 32, i / 32, 0x100000 + std::min(i, 254));
  EXPECT_TRUE(save(path));
  EXPECT_EQ(bytesOf(path)[12], 24);
  EXPECT_EQ(record().dirColors, -1);
  EXPECT_EQ(record().bitCount, 24);
  EXPECT_EQ(record().bihBitCount, 24);
  EXPECT_TRUE(samePixels(decode(bytesOf(path)).image, state.picImage));
}

TEST_F(IconSaverTest, AnIconWithAlphaSavesItsValues) {
  const Picture p = anyPicture(16, 32);
  const std::string path = given(entryOf(p));
  EXPECT_TRUE(save(path));
  Picture expected = p;  // transparent pixels lose their alpha
  expected.color = [&](int x, int y) {
    Rgb c = p.color(x, y);
    if (p.transparent(x, y)) c.a = 0;
    return c;
  };
  EXPECT_EQ(bytesOf(path), build(entryOf(expected)));
}

TEST_F(IconSaverTest, ASavedIconIsUnchangedAndFreeOfItsOrigin) {
  const std::string source = given(entryOf(anyPicture(32, 24), 0, 24));
  record().fromMultiIconFile = record().isCursor = record().neverSaved = record().modified = true;
  record().multiIconIndex = record().hotspotX = record().hotspotY = 3;
  record().sourceLabel = "Screen capture";
  record().bihBitCount = 8;
  state.screen.lblStatusPanel[1] = "*";
  state.picImage.fill(0x123456);
  const std::string path = folder.path("new.ico");
  EXPECT_TRUE(save(path));
  EXPECT_EQ(record().path.trimmed(), path);
  EXPECT_EQ(record().sourceLabel.trimmed(), "ICO file");
  EXPECT_FALSE(record().isDiscrepant());
  EXPECT_FALSE(record().fromMultiIconFile || record().isCursor || record().neverSaved || record().modified);
  EXPECT_EQ(record().multiIconIndex + record().hotspotX + record().hotspotY, 0);
  EXPECT_EQ(state.screen.lblStatusPanel[1], "");
  EXPECT_TRUE(panelIsUpToDate());
  EXPECT_EQ(state.screen.lblStatusPanel[0], path);
  EXPECT_EQ(callsBesidesEnabling(), std::vector<std::string>{"AddHistory " + path});
}

TEST_F(IconSaverTest, AReadOnlyFileIsReportedAndTheIconStaysModified) {
  const std::string path = given(entryOf(anyPicture(32, 4)));
  const Bytes before = bytesOf(path);
  fs::permissions(path, fs::perms::owner_read);
  record().modified = true;
  boxes.expectTold(kReadOnly, BoxIcon::Exclamation);
  EXPECT_FALSE(save(path));
  EXPECT_TRUE(record().modified);
  EXPECT_TRUE(saver.mSaveFailed());
  EXPECT_EQ(bytesOf(path), before);
}

TEST_F(IconSaverTest, AnyOtherFailureIsReportedAndTheIconStaysModified) {
  const std::string before = given(entryOf(anyPicture(32, 4)));
  record().modified = true;
  boxes.expectTold("Failed to save this icon", BoxIcon::Exclamation);
  EXPECT_FALSE(save(folder.path("no/such/folder.ico")));
  EXPECT_TRUE(record().modified);
  EXPECT_TRUE(saver.mSaveFailed());
  EXPECT_EQ(record().path.trimmed(), before);
}

TEST_F(IconSaverTest, SaveWritesToItsOwnFileWhenItIsASingleIconFileThatIsThere) {
  const std::string path = given(entryOf(anyPicture(32, 4)), "UPPER.ICO");
  state.picImage.fill(kWhite);
  record().modified = true;
  saver.doFileSave();
  EXPECT_FALSE(record().modified);
  EXPECT_EQ(bytesOf(path)[12], 1);
}

TEST_F(IconSaverTest, SaveAsksForANameInEveryOtherCase) {
  const std::string path = given(entryOf(anyPicture(32, 4)));
  dialogs.paths = {"", "", ""};
  record().path = folder.path("gone.ico");
  saver.doFileSave();
  record().path = folder.write("other.bmp", {1});
  saver.doFileSave();
  record().path = path;
  record().fromMultiIconFile = true;
  boxes.expectTold(
      "Reminder:  The original icon file contains multiple icons.\n\n"
      " If you don't wish to overwrite it, save to a different name.",
      BoxIcon::Information);
  saver.doFileSave();
  EXPECT_EQ(dialogs.requests.size(), 3u);
  EXPECT_TRUE(saver.mSaveFailed());
}

TEST_F(IconSaverTest, SaveReportsThatTheFilesFolderIsGoneAndStartsAboveIt) {
  fs::create_directory(folder.path("sub"));
  given(entryOf(anyPicture(32, 4)), "sub/icon.ico");
  state.process.mLastFolder = folder.path("");
  fs::remove_all(folder.path("sub"));
  dialogs.paths = {""};
  boxes.expectTold(folder.path("sub/") + "\nFolder not found.", BoxIcon::Exclamation);
  saver.doFileSave();
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_TRUE(fs::equivalent(dialogs.requests[0].folder, folder.path("")));
  EXPECT_TRUE(boxes.done());
}

TEST_F(IconSaverTest, SaveAsReportsThatTheFolderOfTheLastDialogIsGone) {
  given(entryOf(anyPicture(32, 4)));
  state.process.mLastFolder = folder.path("gone/deeper/");
  dialogs.paths = {""};
  boxes.expectTold(folder.path("gone/deeper/") + "\nFolder not found.", BoxIcon::Exclamation);
  saver.doSaveAs(SaveMode::Icon);
  EXPECT_TRUE(fs::equivalent(dialogs.requests.back().folder, folder.path("")));
  EXPECT_EQ(state.process.mLastFolder, folder.path("gone/deeper/")) << "a cancelled dialog changes nothing";
}

TEST_F(IconSaverTest, AFileThatIsNoFileOfOneIconAnyMoreGoesToAnotherName) {
  const std::string path = given(anyEntry(32, 4));
  IcoFile cursor{{anyEntry(32, 4)}, 0, 2, {}};
  for (const Bytes& changed : {build(IcoFile{{anyEntry(16, 4), anyEntry(32, 4)}, 0, 1, {}}), build(cursor),
                               Bytes{'t', 'e', 'x', 't'}, Bytes{}}) {
    folder.write("given.ico", changed);
    record().modified = true;
    boxes.expectTold(path + "\n\nThis file has been changed meanwhile.\nNothing has been written to it.",
                     BoxIcon::None);
    dialogs.paths = {""};
    saver.doFileSave();
    EXPECT_TRUE(saver.mSaveFailed());
    EXPECT_TRUE(record().modified);
    EXPECT_EQ(dialogs.requests.back().fileName, "given");
    EXPECT_EQ(bytesOf(path), changed);
  }
}

TEST_F(IconSaverTest, AFileOfOneOtherIconIsStillItsOwn) {
  const std::string path = given(anyEntry(32, 4));
  folder.write("given.ico", build(anyEntry(16, 8)));
  saver.doFileSave();
  EXPECT_EQ(bytesOf(path)[6], 32);
}

// Files of other containers.

// "Copy To Container" leaves such a record.
void IconSaverTest::copyFromContainer2(const std::string& path) {
  state.mIconRecs[1] = record();
  record().neverSaved = record().modified = true;
  ASSERT_EQ(record().path.trimmed(), path);
}

TEST_F(IconSaverTest, ACopyAsksBeforeItsFirstSaveOverTheFileAndThenNoMore) {
  const std::string path = given(anyEntry(32, 4));
  const Bytes before = bytesOf(path);
  copyFromContainer2(path);
  state.picImage.fill(kWhite);
  boxes.expectAsked(holds(2), BoxAnswer::No);
  saver.doFileSave();
  EXPECT_TRUE(saver.mSaveFailed());
  EXPECT_TRUE(record().modified && record().neverSaved);
  EXPECT_EQ(bytesOf(path), before);
  boxes.expectAsked(holds(2), BoxAnswer::Yes);
  saver.doFileSave();
  EXPECT_FALSE(record().modified || record().neverSaved);
  EXPECT_NE(bytesOf(path), before);
  saver.doFileSave();
  EXPECT_FALSE(record().neverSaved);
}

TEST_F(IconSaverTest, ACopyWhoseOriginalIsGoneFromThePanelAsksWhetherToOverwriteItsFile) {
  const std::string path = given(anyEntry(32, 4));
  copyFromContainer2(path);
  state.mIconRecs[1] = {};
  boxes.expectAsked(path + " already in existence.\n\nOverwrite?\n", BoxAnswer::No);
  saver.doFileSave();
  EXPECT_TRUE(saver.mSaveFailed());
  EXPECT_TRUE(record().neverSaved);
  boxes.expectAsked(path + " already in existence.\n\nOverwrite?\n", BoxAnswer::Yes);
  saver.doFileSave();
  EXPECT_FALSE(record().neverSaved);
}

TEST_F(IconSaverTest, TheContainerThatOpenedTheFileSavesThereWithoutAQuestion) {
  const std::string path = given(anyEntry(32, 4));
  state.mIconRecs[1] = record();
  state.mIconRecs[1].neverSaved = true;
  record().modified = true;
  saver.doFileSave();
  EXPECT_FALSE(record().modified);
}

TEST_F(IconSaverTest, SaveAsAsksOnceBeforeItWritesOverAFileOfOtherContainers) {
  given(anyEntry(32, 4));
  const std::string other = folder.write("other.ico", {'o', 'l', 'd'});
  fs::create_symlink(other, folder.path("link.ico"));
  state.mIconRecs[3].path = state.mIconRecs[4].path = other;
  for (const SaveMode mode : {SaveMode::Icon, SaveMode::Cursor, SaveMode::Mask}) {
    for (const std::string& path : {other, folder.path("link.ico")}) {
      dialogs.paths = {path};
      boxes.expectAsked(holds(4), BoxAnswer::No);
      saver.doSaveAs(mode);
      EXPECT_TRUE(saver.mSaveFailed());
      EXPECT_EQ(bytesOf(other), (Bytes{'o', 'l', 'd'}));
    }
  }
  dialogs.paths = {other};
  boxes.expectAsked(holds(4), BoxAnswer::Yes);
  saver.doSaveAs(SaveMode::Icon);
  EXPECT_EQ(record().path.trimmed(), other);
}

TEST_F(IconSaverTest, SaveAsOverTheIconsOwnFileAsksNothing) {
  const std::string path = given(anyEntry(32, 4));
  record().modified = true;
  dialogs.paths = {path};
  saver.doSaveAs(SaveMode::Icon);
  EXPECT_FALSE(record().modified);
}

TEST_F(IconSaverTest, SaveAsOffersANameAndSaves) {
  given(entryOf(anyPicture(32, 4)), "smile.ico");
  record().modified = true;
  rooms.clipboard.hold(Surface(4, 4, kWhite));
  rooms.drawing.clipboardCommands.doPaste(true);
  ASSERT_TRUE(state.mRegionExists && state.mPendingPaint);
  state.screen.mActivePanel = kRotatePanel;
  const std::string path = folder.path("grin.ico");
  dialogs.paths = {path};
  saver.doSaveAs(SaveMode::Icon);
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(dialogs.requests[0].fileName, "smile");
  EXPECT_EQ(dialogs.requests[0].defaultExtension, "ico");
  EXPECT_EQ(dialogs.requests[0].filters, (std::vector<FileFilter>{{"Icon files (*.ico)", "*.ico"}}));
  EXPECT_EQ(record().path.trimmed(), path);
  EXPECT_FALSE(record().modified);
  EXPECT_EQ(saver.lastSavedFile(), path);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_FALSE(state.mRegionExists || state.mPendingPaint);
  EXPECT_EQ(decode(bytesOf(path)).image.GetPixel(3, 3), kWhite) << "what was pasted is saved";
}

TEST_F(IconSaverTest, AFailedSaveAsKeepsTheIconModified) {
  given(entryOf(anyPicture(32, 4)));
  record().modified = true;
  dialogs.paths = {folder.path("no/such.ico")};
  boxes.expectTold("Failed to save this icon", BoxIcon::Exclamation);
  saver.doSaveAs(SaveMode::Icon);
  EXPECT_TRUE(record().modified);
  EXPECT_TRUE(saver.mSaveFailed());
}

TEST_F(IconSaverTest, ProposedNamesTellSizeAndColorsOfAMultiIconFile) {
  EXPECT_EQ(offered("Untitled", SaveMode::Icon), "Untitled");
  EXPECT_EQ(offered("/a/b/icon.ico", SaveMode::Icon), "icon");
  EXPECT_EQ(offered("/a/b/icon.ico", SaveMode::Mask), "icon_Mask");
  record().fromMultiIconFile = true;
  record().dirColors = -1;
  record().bitCount = 24;
  EXPECT_EQ(offered("/a/b/icon.ico", SaveMode::Icon), "icon_32_24bpp");
  record().dirColors = 256;
  record().bitCount = 8;
  EXPECT_EQ(offered("/a/b/icon.ico", SaveMode::Bitmap), "icon_32_256");
  EXPECT_EQ(offered("/a/b/icon.ico", SaveMode::Mask), "icon_Mask");
}

TEST_F(IconSaverTest, SaveAsBitmapPutsTheCurrentColorBehindAndKeepsSilver) {
  given(entryOf(anyPicture(16, 4)));
  state.picImage.fill(kBlack);
  state.picMask.fill(kWhite);
  state.picImage.SetPixelV(3, 2, 0xC0C0C0);  // real silver
  state.picMask.SetPixelV(3, 2, kBlack);
  state.picImage.SetPixelV(4, 2, rgb(1, 2, 3));
  state.picMask.SetPixelV(4, 2, kBlack);
  rooms.document.editingArea.ComposeCurrentIcon();
  state.mCurrentColor = rgb(0, 200, 0);
  boxes.expectAsked(kBitmapQuestion, BoxAnswer::Yes);
  dialogs.paths = {folder.path("a.bmp")};
  saver.saveAsBitmap();
  EXPECT_EQ(dialogs.requests[0].defaultExtension, "bmp");
  EXPECT_EQ(dialogs.requests[0].filters,
            (std::vector<FileFilter>{{"Bitmap files (*.bmp)", "*.bmp"}, {"(*.*)", "*.*"}}));
  EXPECT_EQ(bitmapPixel(folder.path("a.bmp"), 0, 0), rgb(0, 200, 0));
  EXPECT_EQ(bitmapPixel(folder.path("a.bmp"), 3, 2), 0xC0C0C0);
  EXPECT_EQ(bitmapPixel(folder.path("a.bmp"), 4, 2), kBlack) << "the dithers know colours by steps of 17 only";
}

// The depth follows from the colours, and each depth has its palette.
TEST_F(IconSaverTest, BitmapsHaveTheDepthThatTheirColorsNeed) {
  given(entryOf(anyPicture(16, 4)));
  struct Case {
    Color color;  // of one pixel, the rest is white
    std::size_t size;
    int bits, offset;
    Color saved;
  };
  for (const Case& c : {Case{kBlack, 62 + 4 * 16, 1, 62, kBlack}, Case{0x0000FF, 118 + 8 * 16, 4, 118, 0x0000FF},
                        Case{rgb(51, 102, 153), 1078 + 16 * 16, 8, 1078, rgb(51, 102, 153)}}) {
    Surface picture(16, 16, kWhite);
    picture.SetPixelV(5, 3, c.color);
    bool ok = false;
    saver.SaveBitmap(picture, folder.path("depth.bmp"), ok);
    const Bytes b = bytesOf(folder.path("depth.bmp"));
    EXPECT_TRUE(ok);
    EXPECT_EQ(b.size(), c.size) << c.bits;
    EXPECT_EQ(b[28], c.bits);
    EXPECT_EQ(b[10] + 256 * b[11], c.offset);
    EXPECT_EQ(bitmapPixel(folder.path("depth.bmp"), 5, 3), c.saved) << c.bits;
    EXPECT_EQ(bitmapPixel(folder.path("depth.bmp"), 6, 3), kWhite) << c.bits;
  }
  Surface picture(32, 32, kWhite);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) picture.SetPixelV(x, y, rgb(8 * x, 8 * y, x ^ y));
  record().size = 32;
  bool ok = false;
  saver.SaveBitmap(picture, folder.path("deep.bmp"), ok);
  EXPECT_EQ(bytesOf(folder.path("deep.bmp"))[28], 24);
  EXPECT_EQ(bitmapPixel(folder.path("deep.bmp"), 7, 9), rgb(56, 72, 7 ^ 9));
}

TEST_F(IconSaverTest, SaveAsBitmapOfAnIconWithAlphaBlendsOverTheGround) {
  Picture p = anyPicture(16, 32);
  p.color = [](int, int) { return Rgb{0, 255, 100, 128}; };
  p.transparent = [](int x, int) { return x == 0; };
  given(entryOf(p));
  state.mCurrentColor = rgb(9, 9, 9);
  boxes.expectAsked(kBitmapQuestion, BoxAnswer::Yes);
  dialogs.paths = {folder.path("a.bmp")};
  saver.saveAsBitmap();
  EXPECT_EQ(bitmapPixel(folder.path("a.bmp"), 5, 5), rgb(96, 223, 146));
}

TEST_F(IconSaverTest, SaveAsBitmapEndsOnNo) {
  given(entryOf(anyPicture(16, 4)));
  boxes.expectAsked(kBitmapQuestion, BoxAnswer::No);
  saver.saveAsBitmap();
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(IconSaverTest, SaveMaskWritesTheMask) {
  const Picture p = anyPicture(16, 4);
  given(entryOf(p), "smile.ico");
  dialogs.paths = {folder.path("m.bmp")};
  saver.doSaveAs(SaveMode::Mask);
  EXPECT_EQ(dialogs.requests[0].fileName, "smile_Mask");
  EXPECT_EQ(bitmapPixel(folder.path("m.bmp"), 0, 0), kWhite);
  EXPECT_EQ(bitmapPixel(folder.path("m.bmp"), 1, 0), kBlack);
}

TEST_F(IconSaverTest, TheMaskOfAnIconWithHardlyATransparentPixelIsSavedAsItIs) {
  given(entryOf(anyPicture(32, 4)));
  state.picMask.fill(kBlack);
  bool ok = false;
  for (const auto& corners : {std::vector<int>{}, {0, 31}}) {
    for (const int x : corners)
      for (const int y : corners) state.picMask.SetPixelV(x, y, kWhite);
    saver.SaveBitmap(state.picMask, folder.path("m.bmp"), ok);
    ASSERT_TRUE(ok);
    for (int y = 0; y < 32; ++y)
      for (int x = 0; x < 32; ++x)
        ASSERT_EQ(bitmapPixel(folder.path("m.bmp"), x, y), state.picMask.GetPixel(x, y)) << x << ", " << y;
  }
}

TEST_F(IconSaverTest, ABitmapThatCannotBeWrittenIsReported) {
  given(entryOf(anyPicture(16, 4)));
  dialogs.paths = {folder.path("no/such.bmp")};
  boxes.expectTold("Failed to save this file.", BoxIcon::Exclamation);
  saver.doSaveAs(SaveMode::Mask);
  EXPECT_TRUE(saver.mSaveFailed());
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(IconSaverTest, ANewIconIsTransparentThroughoutAndOfTheSizeAskedFor) {
  for (const int size : {32, 16, 48, 24}) {
    record().modified = false;
    state.screen.colorFrame = ColorFrame::Chart256;
    const unsigned before = state.iconSerial;
    saver.doNewIcon(size);
    EXPECT_EQ(record().size, size);
    EXPECT_TRUE(samePixels(state.picImage, Surface(size, size, kBlack)));
    EXPECT_TRUE(samePixels(state.picMask, Surface(size, size, kWhite)));
    EXPECT_TRUE(samePixels(state.PicIcon, Surface(size, size, kGround)));
    EXPECT_TRUE(panelIsUpToDate());
    EXPECT_EQ(record().sourceLabel.trimmed(), "New icon");
    EXPECT_EQ(record().path.trimmed(), "Untitled");
    EXPECT_TRUE(record().used && record().present);
    EXPECT_EQ(record().dirColors, 0);
    EXPECT_EQ(record().bitCount, 0);
    EXPECT_NE(state.iconSerial, before);
    EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart16);
    EXPECT_EQ(rooms.drawing.history.undoCount(), 1);
    EXPECT_EQ(rooms.drawing.tools.selectedTool(), kPaint);
  }
  EXPECT_EQ(editor.count("recordUndo"), 4);
}

TEST_F(IconSaverTest, ANewIconOffersToSaveFirstAndARefusalKeepsTheOldOne) {
  const std::string path = given(entryOf(anyPicture(16, 4)));
  record().modified = true;
  editor.askSaveProceeds = false;
  saver.doNewIcon(32);
  EXPECT_EQ(record().path.trimmed(), path);
  EXPECT_EQ(record().size, 16);
  editor.askSaveProceeds = true;
  saver.doNewIcon(32);
  EXPECT_EQ(editor.count("AskSaveCurrent "), 2);
  EXPECT_EQ(record().path.trimmed(), "Untitled");
  EXPECT_FALSE(record().modified);
}

TEST_F(IconSaverTest, ANewIconOfAnotherSizeAsksBeforeItEndsAnAnimatedCursorSession) {
  constexpr const char* kQuestion =
      "Animated cursor session for 32x32 icons only\nTerminate animated cursor session?\n";
  state.screen.aniContainerVisible = true;
  boxes.expectAsked(kQuestion, BoxAnswer::No);
  saver.doNewIcon(16);
  EXPECT_FALSE(record().used);
  saver.doNewIcon(32);
  EXPECT_TRUE(state.screen.aniContainerVisible) << "32x32 fits the session";
  boxes.expectAsked(kQuestion, BoxAnswer::Yes);
  saver.doNewIcon(48);
  EXPECT_EQ(record().size, 48);
  EXPECT_FALSE(state.screen.aniContainerVisible);
}

// Another program that changes a file just before it is written.
class ChangingJustBefore : public SystemCalls {
 public:
  ChangingJustBefore(std::string path, Bytes content) : path_(std::move(path)), content_(std::move(content)) {}
  int open(int folder, const char* name, int flags, mode_t mode) override {
    if (!content_.empty()) writeNow(std::exchange(content_, {}));
    return SystemCalls::open(folder, name, flags, mode);
  }

 private:
  void writeNow(const Bytes& content) const {
    std::ofstream(path_, std::ios::binary).write(reinterpret_cast<const char*>(content.data()), std::ssize(content));
  }

  const std::string path_;
  Bytes content_;
};

TEST_F(IconSaverTest, AFileThatChangesBetweenTheLookAtItAndTheSaveIsKept) {
  const std::string path = given(entryOf(anyPicture(16, 4)));
  const Bytes changed = build(IcoFile{{anyEntry(16, 4), anyEntry(32, 4)}, 0, 1, {}});
  record().modified = true;
  boxes.expectTold("Failed to save this icon", BoxIcon::Exclamation);
  ChangingJustBefore calls(path, changed);
  const SystemCallsFor replaced(calls);
  saver.doFileSave();
  EXPECT_TRUE(saver.mSaveFailed());
  EXPECT_TRUE(record().modified);
  EXPECT_EQ(bytesOf(path), changed);
}

TEST_F(IconSaverTest, AFileThatAnotherOfOurProgramsIsChangingIsNotSavedOver) {
  const std::string path = given(entryOf(anyPicture(16, 4)));
  const Bytes before = bytesOf(path);
  state.picImage.fill(kWhite);
  record().modified = true;
  boxes.expectTold(path + "\n\nAnother program is changing this file.\nNothing has been written to it.\n",
                   BoxIcon::Exclamation);
  {
    const auto lock = FileLock::take(path, std::chrono::milliseconds(0));
    saver.doFileSave();
  }
  EXPECT_TRUE(saver.mSaveFailed());
  EXPECT_TRUE(record().modified);
  EXPECT_EQ(bytesOf(path), before);
  saver.doFileSave();
  EXPECT_FALSE(record().modified);
}

TEST_F(IconSaverTest, TheSaveQuestionCarriesItsMessage) {
  boxes.expect("Save current icon to file?\n\n(why)\n", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
  EXPECT_FALSE(proceeds("(why)"));
}

TEST_F(IconSaverTest, TheSaveQuestionProceedsAfterNoAndAfterASave) {
  const std::string path = given(entryOf(anyPicture(16, 4)));
  record().modified = true;
  dialogs.paths = {""};
  saver.doSaveAs(SaveMode::Icon);
  ASSERT_TRUE(saver.mSaveFailed()) << "by a save before";
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::No);
  EXPECT_TRUE(proceeds());
  EXPECT_TRUE(record().modified);
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes);
  EXPECT_TRUE(proceeds());
  EXPECT_FALSE(record().modified);
}

TEST_F(IconSaverTest, TheSaveQuestionDoesNotProceedWhenNothingWasSaved) {
  given(entryOf(anyPicture(16, 4)));
  record().path = folder.path("gone.ico");
  dialogs.paths = {"", folder.path("no/such.ico")};
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes);
  EXPECT_FALSE(proceeds());
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes);
  boxes.expectTold("Failed to save this icon", BoxIcon::Exclamation);
  EXPECT_FALSE(proceeds());
}

TEST_F(IconSaverTest, AnOpenedFileSavesAndOpensAgainWithTheSamePixels) {
  for (const int bits : {24, 32}) {
    const std::string path = given(entryOf(anyPicture(48, bits)));
    const Surface image = state.picImage, mask = state.picMask;
    EXPECT_TRUE(save(path));
    EXPECT_TRUE(openQuietly(path));
    EXPECT_TRUE(samePixels(state.picImage, image));
    EXPECT_TRUE(samePixels(state.picMask, mask));
  }
}

}  // namespace
}  // namespace gp::test
