#include "platform/files/Files.h"
#include "platform/files/ProgramFolders.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace gp {
namespace {

namespace fs = std::filesystem;

class Folders : public testing::Test {
 protected:
  ProgramFolders choose() const { return chooseProgramFolders(bin_, variables_); }

  test::TempFolder folder_;
  const std::string bin_ = folder_.makeFolder("usr/bin");
  FolderVariables variables_{
      .home = folder_.file("home"), .configHome = folder_.file("config"), .temporary = folder_.makeFolder("tmp")};
};

TEST_F(Folders, SettingsLieInTheConfigFolder) {
  EXPECT_EQ(choose().settings, folder_.file("config/Glimmerpane"));
  variables_.configHome = "relative";
  EXPECT_EQ(choose().settings, folder_.file("home/.config/Glimmerpane"));
  EXPECT_EQ(fs::status(choose().settings).permissions(), fs::perms::owner_all);
  EXPECT_TRUE(fs::is_empty(bin_));
}

TEST_F(Folders, AWritableSettingsFileBesideTheExecutableIsUsed) {
  const std::string file = folder_.write("usr/bin/Glimmerpane.ini", "");
  EXPECT_EQ(choose().settings, bin_);
  EXPECT_FALSE(directoryExists(folder_.file("config")));
  EXPECT_EQ(std::distance(fs::directory_iterator(bin_), fs::directory_iterator()), 1) << "asked without writing";
  if (geteuid() == 0) return;  // root may write every file
  fs::permissions(file, fs::perms::owner_read);
  EXPECT_EQ(choose().settings, folder_.file("config/Glimmerpane"));
}

TEST_F(Folders, WithoutAnyOtherFolderTheExecutablesFolderStays) {
  variables_.home = variables_.configHome = "";
  EXPECT_EQ(choose().settings, bin_);
  variables_.configHome = folder_.write("file");
  EXPECT_EQ(choose().settings, bin_) << "nothing can be made there";
}

TEST_F(Folders, ScratchFilesLieInAPrivateFolder) {
  const std::string scratch = choose().scratch;
  EXPECT_EQ(scratch, folder_.file("tmp/glimmerpane-" + std::to_string(geteuid())));
  EXPECT_EQ(fs::status(scratch).permissions(), fs::perms::owner_all);
}

TEST_F(Folders, WhatAnotherPersonPlantedIsNoScratchFolder) {
  const std::string scratch = choose().scratch;
  fs::remove(scratch);
  fs::create_directory_symlink(folder_.makeFolder("elsewhere"), scratch);
  EXPECT_EQ(choose().scratch, choose().settings) << "a link";
  if (geteuid() != 0) return;  // only root can give a folder away
  fs::remove(scratch);
  fs::create_directory(scratch);
  ASSERT_EQ(chown(scratch.c_str(), 1234, 1234), 0);
  EXPECT_EQ(choose().scratch, choose().settings) << "a folder of another person";
}

TEST_F(Folders, DataIsLookedForBesideTheExecutableAndThenInThePrefix) {
  const std::string name = "GPHelp.chm";
  EXPECT_EQ(choose().dataFile(name), bin_ + "/" + name) << "where it is missed";
  folder_.makeFolder("usr/share/glimmerpane");
  const std::string installed = folder_.write("usr/share/glimmerpane/GPHelp.chm");
  EXPECT_EQ(choose().dataFile(name), installed);
  const std::string own = folder_.write("usr/bin/GPHelp.chm");
  EXPECT_EQ(choose().dataFile(name), own);
}

TEST_F(Folders, AFolderWithAccessForOthersIsClosed) {
  const std::string open = folder_.makeFolder("open");
  fs::permissions(open, fs::perms::all);
  EXPECT_EQ(makePrivateFolder(open), open);
  EXPECT_EQ(fs::status(open).permissions(), fs::perms::owner_all);
  EXPECT_EQ(makePrivateFolder(folder_.write("file")), "");
}

}  // namespace
}  // namespace gp
