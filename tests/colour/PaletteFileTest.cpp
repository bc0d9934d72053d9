#include "colour/ColourFixture.h"
#include "support/TempFolder.h"

#include <filesystem>

namespace gp {
namespace {

constexpr const char* kTooSmall = "Not a valid pal file for Glimmerpane (1)";
constexpr const char* kTooLarge = "Not a valid pal file for Glimmerpane (2)";
constexpr const char* kInvalid = "Invalid pal for Glimmerpane";

// A picture loader whose pictures a test sets.
class FakeLoader : public PictureLoader {
 public:
  LoadedPicture next;
  std::string asked;

  void give(int width, int height, Color color = kBlack) {
    next = {PictureProblem::None, width, height, Surface(width, height, color)};
  }
  LoadedPicture loadPicture(const std::string& path, int maxWidth, int maxHeight) override {
    asked = path;
    EXPECT_GE(maxWidth, kMixGradientWidth + 2);
    EXPECT_GE(maxHeight, kMixGradientHeight + 2);
    return next;
  }
};

class PaletteFileTest : public test::ColourFixture {
 protected:
  test::TempFolder folder;
  FakeLoader loader;
  PaletteFile files{context, dialog, loader, mixer, folder.path()};
  const std::filesystem::path before = std::filesystem::current_path();

  ~PaletteFileTest() override { std::filesystem::current_path(before); }

  void load() {
    dialogs.paths = {"/somewhere/a.pal"};
    files.imgLoadPalette();
  }
  void expectRefused(int width, int height, const char* text) {
    const Color first = stripRow(1);
    loader.give(width, height, 0x00FF00);
    boxes.expectTold(text, BoxIcon::None);
    load();
    EXPECT_TRUE(boxes.done()) << width << " x " << height;
    EXPECT_EQ(stripRow(1), first);
  }
  void expectTaken(int width, int height, Color color) {
    loader.give(width, height, color);
    load();
    EXPECT_EQ(stripRow(1), color) << width << " x " << height;
    EXPECT_EQ(stripRow(100), color) << width << " x " << height;
  }
};

TEST_F(PaletteFileTest, TheOpenDialogBeginsInTheProgramsFolderWithTheColourPanelInFront) {
  loader.give(40, 200);
  load();
  ASSERT_EQ(dialogs.requests.size(), 1U);
  EXPECT_EQ(dialogs.requests[0].filters, (std::vector<FileFilter>{{"Palette file (*.pal)", "*.pal"}}));
  EXPECT_EQ(dialogs.requests[0].folder, folder.path());
  EXPECT_EQ(std::filesystem::current_path(), folder.path());
  EXPECT_EQ(editor.calls, (std::vector<std::string>{"closePanels"}));
  EXPECT_EQ(loader.asked, "/somewhere/a.pal");
}

TEST_F(PaletteFileTest, TheSaveDialogOffersAllFilesAndAddsTheExtension) {
  dialogs.paths = {""};
  files.imgSavePalette();
  ASSERT_EQ(dialogs.requests.size(), 1U);
  EXPECT_EQ(dialogs.requests[0].filters, (std::vector<FileFilter>{{"Palette file (*.pal)", "*.*"}}));
  EXPECT_EQ(dialogs.requests[0].defaultExtension, "pal");
  EXPECT_EQ(dialogs.requests[0].folder, folder.path());
  EXPECT_EQ(std::filesystem::current_path(), folder.path());
  EXPECT_EQ(editor.calls, (std::vector<std::string>{"closePanels"}));
}

TEST_F(PaletteFileTest, ASaveReportsFirstThatTheProgramsFolderIsGone) {
  std::filesystem::remove_all(folder.path());
  dialogs.paths = {""};
  boxes.expectTold(folder.path() + "\nFolder not found.", BoxIcon::Exclamation);
  files.imgSavePalette();
  EXPECT_EQ(dialogs.requests[0].folder, std::filesystem::path(folder.path()).parent_path());
}

TEST_F(PaletteFileTest, ACancelledDialogDoesNothing) {
  dialogs.paths = {""};
  files.imgLoadPalette();
  EXPECT_EQ(loader.asked, "");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 0);
}

TEST_F(PaletteFileTest, ThePaletteFileIsABitmapOfTheStripWith24Bits) {
  mix(255, 100, 50);
  dialogs.paths = {folder.file("mine.pal")};
  files.imgSavePalette();
  const std::string bytes = folder.read("mine.pal");
  ASSERT_EQ(bytes.size(), 54U + 40 * 3 * 200);
  EXPECT_EQ(bytes.substr(0, 2), "BM");
  EXPECT_EQ(bytes.substr(14, 16), std::string("\x28\0\0\0\x28\0\0\0\xC8\0\0\0\1\0\x18\0", 16));
  // The bottom row comes first: blue, green, red of the last row, and of the first row at the end.
  EXPECT_EQ(bytes.substr(54, 3), "\x32\x04" + std::string(1, '\0'));
  EXPECT_EQ(bytes.substr(bytes.size() - 3), std::string("\0\0\xFF", 3));
}

TEST_F(PaletteFileTest, ALoadedStripIsSavedAsItWasLoaded) {
  expectTaken(40, 200, rgb(1, 2, 3));
  dialogs.paths = {folder.file("again.pal")};
  files.imgSavePalette();
  const std::string bytes = folder.read("again.pal");
  ASSERT_EQ(bytes.size(), 24054U);
  for (std::size_t at = 54; at < bytes.size(); at += 3) ASSERT_EQ(bytes.substr(at, 3), "\3\2\1");
}

TEST_F(PaletteFileTest, ANameThatCannotBeWrittenEndsInTheBoxOfErrors) {
  dialogs.paths = {folder.file("no/such/folder/a.pal")};
  files.imgSavePalette();
  EXPECT_EQ(editor.count("ShowRunTimeError imgSavePalette_Click"), 1);
}

TEST_F(PaletteFileTest, APictureOfTheStripsSizeOrUpTo2PixelsMoreLoads) {
  expectTaken(40, 200, rgb(1, 1, 1));
  expectTaken(42, 202, rgb(2, 2, 2));
  expectTaken(40, 202, rgb(3, 3, 3));
  expectTaken(41, 200, rgb(4, 4, 4));
  EXPECT_EQ(mixer.picMixGradient().width(), 40);
  EXPECT_EQ(mixer.picMixGradient().height(), 200);
}

TEST_F(PaletteFileTest, ALargerPictureLosesItsRightAndLowerEdge) {
  loader.give(42, 202, kBlack);
  loader.next.picture.SetPixelV(0, 0, kWhite);
  loader.next.picture.SetPixelV(39, 199, 0x0000FF);
  load();
  EXPECT_EQ(mixer.picMixGradient().GetPixel(0, 0), kWhite);
  EXPECT_EQ(mixer.picMixGradient().GetPixel(39, 199), 0x0000FF);
}

TEST_F(PaletteFileTest, ThreePixelsMoreGiveMessage2AndOneLessGivesMessage1) {
  expectRefused(43, 200, kTooLarge);
  expectRefused(40, 203, kTooLarge);
  expectRefused(39, 200, kTooSmall);
  expectRefused(40, 199, kTooSmall);
  expectRefused(43, 199, kTooSmall);
  expectTaken(40, 200, kBlack);
}

TEST_F(PaletteFileTest, APictureBeyondWhatIsReadIsRefusedByItsSizeToo) {
  loader.next = {PictureProblem::TooLarge, 30000, 30000, Surface()};
  boxes.expectTold(kTooLarge, BoxIcon::None);
  load();
  loader.next = {PictureProblem::TooLarge, 39, 30000, Surface()};
  boxes.expectTold(kTooSmall, BoxIcon::None);
  load();
}

TEST_F(PaletteFileTest, AFileThatIsNoPictureIsInvalid) {
  const Color first = stripRow(1);
  loader.next = LoadedPicture();
  boxes.expectTold(kInvalid, BoxIcon::None);
  load();
  EXPECT_EQ(stripRow(1), first);
}

TEST_F(PaletteFileTest, LoadingChangesNeitherSlidersNorCurrentColour) {
  state.mCurrentColor = 0x123456;
  mix(1, 2, 3);
  expectTaken(40, 200, kWhite);
  EXPECT_EQ(mixer.HsrRGB(0), 1);
  EXPECT_EQ(mixer.HsrRGB(2), 3);
  EXPECT_EQ(mixer.PicRGBMix(), rgb(1, 2, 3));
  EXPECT_EQ(state.mCurrentColor, 0x123456);
}

}  // namespace
}  // namespace gp
