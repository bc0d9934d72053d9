#include "platform/files/ProgramFolders.h"
#include "platform/text/ProfileFile.h"
#include "shell/Settings.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <random>

namespace gp {
namespace {

class SettingsFile : public testing::Test {
 protected:
  void have(std::string_view content) { folder_.write(kSettingsFileName, content); }
  std::string content() const { return folder_.read(kSettingsFileName); }
  void set(const char* key, const std::string& value) { ASSERT_TRUE(WriteIniString("Options", key, value, file())); }
  std::string file() const { return folder_.file(kSettingsFileName); }

  // Puts values into the file and writes it; false when that fails.
  template <class... Given, class... Values>
  bool save(void (Settings::*put)(ProfileFile&, Given...) const, const Values&... values) const {
    ProfileFile profile(file());
    (settings_.*put)(profile, values...);
    return profile.save();
  }

  test::TempFolder folder_;
  Options options_;
  Settings settings_{options_, file()};
};

struct DefaultRow {
  int menuIndex;
  const char* key;
  bool fallback;
};
constexpr DefaultRow kDefaults[] = {
    {3, "UseEnlargedEditingArea", true}, {5, "DisplayPixelRGB", false},
    {7, "Tooltip256ColorChart", false},  {9, "UpdOnlyEditAreaDuringRegionDrag", true},
    {11, "PromptToSave", false},         {12, "RemindIfBMP", true},
    {13, "FlagMsgIfAlpha", true},        {14, "AlertIfBadHeader", true},
};

TEST_F(SettingsFile, EachOptionHasItsMenuEntryKeyAndDefault) {
  ASSERT_EQ(booleanOptions().size(), std::size(kDefaults));
  for (const DefaultRow& row : kDefaults) {
    const BooleanOption* option = findBooleanOption(row.menuIndex);
    ASSERT_NE(option, nullptr) << row.menuIndex;
    EXPECT_STREQ(option->key, row.key);
    EXPECT_EQ(options_.*option->member, row.fallback) << row.key;
  }
  EXPECT_EQ(findBooleanOption(0), nullptr);
  EXPECT_EQ(findBooleanOption(16), nullptr);
}

TEST_F(SettingsFile, WithoutAFileTheOptionsStayAndThereIsNoHistory) {
  options_.promptToSave = true;
  EXPECT_FALSE(settings_.LoadOptions());
  EXPECT_TRUE(options_.promptToSave);
}

TEST_F(SettingsFile, AnEmptyFileGivesTheDefaults) {
  have("");
  options_.promptToSave = true;
  options_.grid = 4;
  EXPECT_TRUE(settings_.LoadOptions());
  EXPECT_FALSE(options_.promptToSave);
  EXPECT_EQ(options_.grid, 0);
}

TEST_F(SettingsFile, EachBooleanIsOnForMinusOneAndOffForZero) {
  for (const DefaultRow& row : kDefaults) {
    bool Options::*member = findBooleanOption(row.menuIndex)->member;
    set(row.key, "-1");
    EXPECT_TRUE(settings_.LoadOptions());
    EXPECT_TRUE(options_.*member) << row.key;
    set(row.key, "0");
    EXPECT_TRUE(settings_.LoadOptions());
    EXPECT_FALSE(options_.*member) << row.key;
  }
}

TEST_F(SettingsFile, AnyOtherBooleanTextIsTheDefault) {
  for (const DefaultRow& row : kDefaults)
    for (const char* text : {"yes", "", "1", "-2", "00", "true"}) {
      bool Options::*member = findBooleanOption(row.menuIndex)->member;
      options_.*member = !row.fallback;
      set(row.key, text);
      EXPECT_TRUE(settings_.LoadOptions());
      EXPECT_EQ(options_.*member, row.fallback) << row.key << "=" << text;
    }
}

TEST_F(SettingsFile, APromptToSaveOfYesIsOffAndARemindIfBmpOfYesIsOn) {
  have("[Options]\nPromptToSave=yes\nRemindIfBMP=yes\n");
  EXPECT_TRUE(settings_.LoadOptions());
  EXPECT_FALSE(options_.promptToSave);
  EXPECT_TRUE(options_.remindIfBitmap);
}

TEST_F(SettingsFile, AGridOf9SelectsTheFirstEntry) {
  options_.grid = 3;
  have("[Options]\nGridLines=9\n");
  EXPECT_TRUE(settings_.LoadOptions());
  EXPECT_EQ(options_.grid, 0);
}

TEST_F(SettingsFile, AnIndexCountsOnlyFromZeroToItsLast) {
  for (int index = 0; index < 7; ++index) {
    set("GridLines", std::to_string(index));
    EXPECT_TRUE(settings_.LoadOptions());
    EXPECT_EQ(options_.grid, index);
  }
  for (const char* text : {"7", "-1", "abc", "", "2.5", "99999999999999"}) {
    set("GridLines", text);
    EXPECT_TRUE(settings_.LoadOptions());
    EXPECT_EQ(options_.grid, 0) << text;
  }
  set("OptedStartScreen", "2");
  EXPECT_TRUE(settings_.LoadOptions());
  EXPECT_EQ(options_.startScreen, 2);
  set("OptedStartScreen", "3");
  EXPECT_TRUE(settings_.LoadOptions());
  EXPECT_EQ(options_.startScreen, 0);
}

TEST_F(SettingsFile, SavedOptionsAreLoadedAgain) {
  options_ = {5, 2, false, true, true, false, true, false, false, false};
  EXPECT_TRUE(save(&Settings::SaveOptions));
  const Options saved = options_;
  settings_.resetToDefaults();
  EXPECT_EQ(options_.grid, 0);
  EXPECT_TRUE(settings_.LoadOptions());
  EXPECT_EQ(options_.grid, saved.grid);
  EXPECT_EQ(options_.startScreen, saved.startScreen);
  for (const BooleanOption& option : booleanOptions())
    EXPECT_EQ(options_.*option.member, saved.*option.member) << option.key;
}

TEST_F(SettingsFile, TheFirstSaveWritesEveryKey) {
  EXPECT_TRUE(save(&Settings::SaveOptions));
  EXPECT_EQ(content(),
            "[Options]\nGridLines=0\nOptedStartScreen=0\nUseEnlargedEditingArea=-1\nDisplayPixelRGB=0\n"
            "Tooltip256ColorChart=0\nUpdOnlyEditAreaDuringRegionDrag=-1\nPromptToSave=0\nRemindIfBMP=-1\n"
            "FlagMsgIfAlpha=-1\nAlertIfBadHeader=-1\n");
}

TEST_F(SettingsFile, SavingWithoutAChangeDoesNotTouchTheFile) {
  EXPECT_TRUE(save(&Settings::SaveOptions));
  const auto before = std::filesystem::file_time_type(std::chrono::hours(24));
  std::filesystem::last_write_time(file(), before);
  EXPECT_TRUE(save(&Settings::SaveOptions));
  EXPECT_EQ(std::filesystem::last_write_time(file()), before);
}

TEST_F(SettingsFile, SavingWritesOnlyWhatDiffersAndKeepsForeignLines) {
  EXPECT_TRUE(save(&Settings::SaveOptions));
  have("; mine\n[Foreign]\na=1\n" + content() + "Unknown=7\n");
  const std::string before = content();
  options_.grid = 3;
  EXPECT_TRUE(save(&Settings::SaveOptions));
  std::string expected = before;
  expected.replace(expected.find("GridLines=0"), 11, "GridLines=3");
  EXPECT_EQ(content(), expected);
}

TEST_F(SettingsFile, SavingIntoAReadOnlyFileFails) {
  have("");
  std::filesystem::permissions(file(), std::filesystem::perms::owner_read);
  EXPECT_FALSE(save(&Settings::SaveOptions));
  EXPECT_FALSE(save(&Settings::SaveLastFolder, "/tmp"));
  EXPECT_FALSE(save(&Settings::SaveScreenPos, 1, 2, 3, 4, true));
}

TEST_F(SettingsFile, RandomBytesGiveTheDefaults) {
  std::mt19937 random(11);
  std::string bytes(50000, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  have(bytes);
  options_.grid = 5;
  options_.remindIfBitmap = false;
  EXPECT_TRUE(settings_.LoadOptions());
  EXPECT_EQ(options_.grid, 0);
  EXPECT_TRUE(options_.remindIfBitmap);
  StoredPlace place;
  settings_.GetScreenPos(place);
  EXPECT_FALSE(place.isComplete());
  EXPECT_EQ(settings_.GetLastFolder(), "");
}

TEST_F(SettingsFile, TheLastFolderMustStillBeThere) {
  EXPECT_EQ(settings_.GetLastFolder(), "");
  const std::string there = folder_.makeFolder("icons");
  EXPECT_TRUE(save(&Settings::SaveLastFolder, there));
  EXPECT_EQ(settings_.GetLastFolder(), there);
  std::filesystem::remove(there);
  EXPECT_EQ(settings_.GetLastFolder(), "");
  EXPECT_TRUE(save(&Settings::SaveLastFolder, folder_.write("file")));
  EXPECT_EQ(settings_.GetLastFolder(), "");
}

TEST_F(SettingsFile, APlaceIsReadAsItWasSaved) {
  EXPECT_TRUE(save(&Settings::SaveScreenPos, -15, 30, 12000, 9000, true));
  EXPECT_EQ(content(), "[Screen Pos]\nLeft=-15\nTop=30\nWidth=12000\nHeight=9000\nWinState=-1\n");
  StoredPlace place;
  settings_.GetScreenPos(place);
  EXPECT_TRUE(place.isComplete());
  EXPECT_EQ(place.left, -15);
  EXPECT_EQ(place.height, 9000);
  EXPECT_EQ(place.maximized, true);
  EXPECT_TRUE(save(&Settings::SaveScreenPos, 0, 0, 0, 0, false));
  settings_.GetScreenPos(place);
  EXPECT_EQ(place.maximized, false);
}

TEST_F(SettingsFile, AnAbsentPlaceKeyLeavesItsValueAsItWas) {
  have("[Screen Pos]\nLeft=7\nTop=\n");
  StoredPlace place{1, 2, 3, std::nullopt, std::nullopt};
  settings_.GetScreenPos(place);
  EXPECT_EQ(place.left, 7);
  EXPECT_EQ(place.top, 2);
  EXPECT_EQ(place.width, 3);
  EXPECT_FALSE(place.height);
  EXPECT_FALSE(place.maximized);
}

TEST_F(SettingsFile, ADamagedPlaceIsReadAsFarAsItIsANumber) {
  have("[Screen Pos]\nLeft=abc\nTop=12x\nWidth=1e300\nHeight=-1e300\nWinState=maybe\n");
  StoredPlace place;
  settings_.GetScreenPos(place);
  EXPECT_EQ(place.left, 0);
  EXPECT_EQ(place.top, 12);
  EXPECT_EQ(place.width, std::numeric_limits<int>::max());
  EXPECT_EQ(place.height, std::numeric_limits<int>::min());
  EXPECT_EQ(place.maximized, false);
}

}  // namespace
}  // namespace gp
