// gpicon find on folders of built programs.
#include "animation/FilmBytes.h"
#include "cli/GpiconFixture.h"
#include "extraction/LibraryBytes.h"

namespace gp::test {
namespace {

namespace fs = std::filesystem;

class GpiconFind : public Gpicon {
 protected:
  const std::string tree = folder.path("tree");

  GpiconFind() {
    fs::create_directories(tree + "/a/deep");
    fs::create_directories(tree + "/b");
    program("setup.exe", 2);
    program("UPPER.EXE", 1);
    program("none.exe", 0);
    program("tools.dll", 3);
    program("a/setup.exe", 1, 100);
    program("a/deep/inner.exe", 1, 50);
    program("b/last.exe", 1);
    folder.write("tree/text.exe", {'h', 'i'});
  }

  // Icon i is red: first + i.
  void program(const std::string& name, int icons, int first = 0) const {
    std::vector<Resource> resources;
    for (int i = 0; i < icons; ++i) {
      const Resource image = iconOf(i + 1, imageBytes(plainPicture(32, {first + i, 0, 0, 255})));
      resources.push_back(image);
      resources.push_back(groupOf(i + 1, {{32, 32, 0, 1, 24, 0, i + 1}}));
    }
    folder.write("tree/" + name, peWith(resources));
  }
  std::string target() const {
    fs::create_directories(folder.path("out"));
    return folder.path("out");
  }
  int redOf(const std::string& name) const {
    const auto icon = fileIcon(bytesOf(folder.path("out/" + name)), kLargeIcon);
    return icon ? icon->image.GetPixel(3, 3) : kNoColor;
  }
};

TEST_F(GpiconFind, TheProgramsOfAFolderAreListedWithTheirIcons) {
  const Outcome o = run({"find", tree});
  EXPECT_EQ(o.status, 0) << o.err;
  EXPECT_EQ(o.out, tree + "/setup.exe\t2\n" + tree + "/UPPER.EXE\t1\n");
  EXPECT_EQ(run({"find", tree, "--pattern", "*.dll;u*.exe"}).out, tree + "/tools.dll\t3\n" + tree + "/UPPER.EXE\t1\n");
}

TEST_F(GpiconFind, SubfoldersComeFirstFromTheLastToTheFirst) {
  EXPECT_EQ(run({"find", tree, "--recursive"}).out, tree + "/b/last.exe\t1\n" + tree + "/a/deep/inner.exe\t1\n" + tree +
                                                        "/a/setup.exe\t1\n" + tree + "/setup.exe\t2\n" + tree +
                                                        "/UPPER.EXE\t1\n");
}

TEST_F(GpiconFind, IconsAreSavedByTheNameOfTheirProgram) {
  const Outcome o = run({"find", tree, "-d", target()});
  EXPECT_EQ(o.status, 0) << o.err;
  EXPECT_EQ(o.out, "Total: 3 icons\n");
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"UPPER0_x.ico", "setup0_x.ico", "setup1_x.ico"}));
  EXPECT_EQ(redOf("setup1_x.ico"), 1);
}

TEST_F(GpiconFind, SerialNamesCountOverAllPrograms) {
  const Outcome o = run({"find", tree, "-d", target(), "--serial", "--recursive"});
  EXPECT_EQ(o.out, "Total: 6 icons\n");
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"0_last.ico", "1_inner.ico", "2_setup.ico", "3_setup.ico",
                                                      "4_setup.ico", "5_UPPER.ico"}));
  EXPECT_EQ(redOf("2_setup.ico"), 100);
  EXPECT_EQ(redOf("4_setup.ico"), 1);
}

TEST_F(GpiconFind, ASecondProgramOfOneNameIsKeptApart) {
  const Outcome o = run({"find", tree, "-d", target(), "--recursive"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.out, "Total: 5 icons\n");
  EXPECT_EQ(o.err,
            "gpicon: " + tree + "/setup.exe: setup0_x.ico is from another program of this name (see --serial)\n");
  EXPECT_EQ(redOf("setup0_x.ico"), 100) << "of the first one";
  EXPECT_EQ(redOf("setup1_x.ico"), 1);
}

TEST_F(GpiconFind, TheMaximumEndsTheSearch) {
  EXPECT_EQ(run({"find", tree, "-d", target(), "--recursive", "--serial", "--max", "3"}).out, "Total: 3 icons\n");
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"0_last.ico", "1_inner.ico", "2_setup.ico"}));
}

TEST_F(GpiconFind, SmallIconsHaveSixteenPixels) {
  ASSERT_EQ(run({"find", tree, "-d", target(), "--small", "--max", "1"}).status, 0);
  EXPECT_EQ(bytesOf(folder.path("out/setup0_x.ico")).at(6), 16);
}

TEST_F(GpiconFind, FilesThatAreThereAreKeptWithoutForce) {
  const std::string mine = folder.path("out/setup0_x.ico");
  const Outcome former = (target(), folder.write("out/setup0_x.ico", {1, 2, 3}), run({"find", tree, "-d", target()}));
  EXPECT_EQ(former.status, 1);
  EXPECT_EQ(former.out, "Total: 2 icons\n");
  EXPECT_EQ(bytesOf(mine), (Bytes{1, 2, 3}));
  fs::remove(folder.path("out/setup1_x.ico")), fs::remove(folder.path("out/UPPER0_x.ico"));
  EXPECT_EQ(run({"find", tree, "-d", target(), "--force"}).out, "Total: 3 icons\n");
  EXPECT_EQ(redOf("setup0_x.ico"), 0);
}

TEST_F(GpiconFind, FilesThatAreKeptDoNotCountForTheMaximum) {
  ASSERT_EQ(run({"find", tree, "-d", target(), "--max", "1"}).out, "Total: 1 icons\n");
  EXPECT_EQ(run({"find", tree, "-d", target(), "--max", "1"}).out, "Total: 1 icons\n");
  EXPECT_EQ(namesIn("out"), (std::vector<std::string>{"setup0_x.ico", "setup1_x.ico"}));
}

TEST_F(GpiconFind, BehindTheMaximumNoProgramIsOpened) {
  const std::string opened = folder.path("opened");
  const Outcome o = runAfter("strace -f -e trace=openat -o " + inShell(opened) + " ",
                             {"find", tree, "--jobs", "1", "-d", target(), "--max", "1"});
  if (!fs::exists(opened)) GTEST_SKIP() << "no strace";
  EXPECT_EQ(o.out, "Total: 1 icons\n");
  const std::string calls = textOf("opened");
  EXPECT_NE(calls.find("setup.exe"), std::string::npos);
  EXPECT_EQ(calls.find("UPPER.EXE"), std::string::npos);
}

TEST_F(GpiconFind, TheTargetMustBeThere) {
  const Outcome o = run({"find", tree, "-d", folder.path("gone")});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(o.err, "gpicon: " + folder.path("gone") + ": not a folder\n");
  EXPECT_FALSE(fs::exists(folder.path("gone")));
  EXPECT_EQ(run({"find", folder.path("gone")}).status, 1);
}

TEST_F(GpiconFind, ManyJobsGiveTheSame) {
  for (int i = 0; i < 40; ++i) program("b/p" + std::to_string(i) + ".exe", 1 + i % 5, i);
  const Outcome one = run({"find", tree, "--recursive", "--jobs", "1"});
  EXPECT_EQ(run({"find", tree, "--recursive", "--jobs", "8"}).out, one.out);
  EXPECT_EQ(lines(one.out), 45);
  std::vector<std::vector<std::string>> names;
  std::vector<int> reds;
  for (const std::string jobs : {"1", "8"}) {
    fs::remove_all(folder.path("out"));
    EXPECT_EQ(run({"find", tree, "--recursive", "--serial", "-d", target(), "--max", "100", "--jobs", jobs}).out,
              "Total: 100 icons\n");
    names.push_back(namesIn("out"));
    for (const std::string& name : names.back()) reds.push_back(redOf(name));
  }
  EXPECT_EQ(names[0], names[1]);
  EXPECT_TRUE(std::equal(reds.begin(), reds.begin() + 100, reds.begin() + 100));
}

// More icons than are kept for a program until it is its turn.
TEST_F(GpiconFind, AProgramCanHaveThousandsOfIcons) {
  std::vector<Resource> resources{iconOf(1, imageBytes(plainPicture(16, {9, 0, 0, 255}, 4)))};
  for (int i = 1; i <= 2500; ++i) resources.push_back(groupOf(i, {{16, 16, 16, 1, 4, 0, 1}}));
  fs::create_directories(folder.path("many"));
  folder.write("many/x.exe", peWith(resources));
  EXPECT_EQ(run({"find", folder.path("many"), "--small", "-d", target()}).out, "Total: 2500 icons\n");
  EXPECT_TRUE(fs::exists(folder.path("out/x2499_x.ico")));
  EXPECT_EQ(namesIn("out").size(), 2500u);
}

TEST_F(GpiconFind, WrongUsageIsNamed) {
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{"find"},
                                             {"find", tree, tree},
                                             {"find", tree, "--serial"},
                                             {"find", tree, "-d"},
                                             {"find", tree, "--pattern", ""},
                                             {"find", tree, "--jobs", "x"},
                                             {"find", tree, "-d", folder.path("out"), "--max", "0"}}) {
    const Outcome o = run(arguments);
    EXPECT_EQ(o.status, 2) << testing::PrintToString(arguments);
    EXPECT_EQ(lines(o.err), 1);
  }
}

}  // namespace
}  // namespace gp::test
