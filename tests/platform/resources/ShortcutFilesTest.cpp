#include "platform/resources/ShellLink.h"
#include "support/LinkBytes.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace gp::test {
namespace {

constexpr std::uint32_t kInfo = 0x2, kIcon = 0x40;

// A path of this machine as a shell link has it.
std::string onDrive(std::string path, const std::string& drive = "Z:") {
  std::ranges::replace(path, '/', '\\');
  return drive + path;
}

class ShortcutFiles : public testing::Test {
 protected:
  std::string putLink(const std::string& name, const LinkBytes& built) {
    return folder_.write(name, std::string(built.bytes().begin(), built.bytes().end()));
  }
  std::string targetOf(const std::string& path) {
    std::string target = "former";
    ResolveShortcut(path, target);
    return target;
  }

  TempFolder folder_;
};

TEST_F(ShortcutFiles, RegularFilesOfThisMachineAreLocal) {
  const std::string file = folder_.write("a b.exe");
  EXPECT_EQ(localFile(file), file);
  EXPECT_EQ(localFile(onDrive(file)), file);
  EXPECT_EQ(localFile(onDrive(file, "z:")), file);
  EXPECT_EQ(localFile("Z:" + file), file);
}

TEST_F(ShortcutFiles, OtherDrivesRelativePathsAndNetworksAreNot) {
  const std::string file = folder_.write("a.exe");
  for (const std::string& path :
       {onDrive(file, "C:"), onDrive(file, ""), "Z:" + file.substr(1), "/" + file, "\\" + onDrive(file, ""),
        "\\\\?\\" + onDrive(file), "Z:/" + file, onDrive("/" + file), "/\\" + file, "\\/" + file, std::string("a.exe"),
        std::string("Z:"), std::string("/"), std::string(), "file://" + file, file + ".exe", "%HOME%" + file})
    EXPECT_EQ(localFile(path), "") << path;
}

TEST_F(ShortcutFiles, FoldersAndPipesAreNotLocalFiles) {
  EXPECT_EQ(localFile(folder_.path()), "");
  ASSERT_EQ(mkfifo(folder_.file("pipe").c_str(), 0600), 0);
  EXPECT_EQ(localFile(folder_.file("pipe")), "");
  EXPECT_EQ(localFile("/dev/zero"), "");
}

TEST_F(ShortcutFiles, ResolvingGivesTheTargetAndAddsTheEnding) {
  const std::string target = folder_.write("a.exe");
  const std::string link = putLink("l.lnk", LinkBytes(kInfo).info(onDrive(target)));
  EXPECT_EQ(targetOf(link), target);
  EXPECT_EQ(targetOf(folder_.file("l")), target);
  EXPECT_EQ(targetOf(putLink("M.LNK", LinkBytes(kInfo).info(onDrive(target)))), target);
}

TEST_F(ShortcutFiles, ResolvingWithoutAFileOfThisMachineGivesNothing) {
  EXPECT_EQ(targetOf(putLink("l.lnk", LinkBytes(kInfo).info("C:\\windows\\notepad.exe"))), "");
  EXPECT_EQ(targetOf(putLink("m.lnk", LinkBytes(kInfo).info("\\\\server\\share\\a.exe"))), "");
  EXPECT_EQ(targetOf(folder_.write("n.lnk", "no link")), "");
  EXPECT_EQ(targetOf(folder_.file("missing.lnk")), "");
}

TEST_F(ShortcutFiles, EndingsAreKnownInAnyCase) {
  EXPECT_TRUE(isNamedShellLink("/a/B.LnK"));
  EXPECT_FALSE(isNamedShellLink("/a/lnk"));
  EXPECT_TRUE(isNamedDesktopEntry("/a/b.Desktop"));
  EXPECT_FALSE(isNamedDesktopEntry("/a/desktop"));
}

TEST_F(ShortcutFiles, DroppedIconFileIsItself) {
  EXPECT_EQ(droppedIconFile("/a/b.ICO"), "/a/b.ICO");
  EXPECT_EQ(droppedIconFile("/a/b.bmp"), "");
}

TEST_F(ShortcutFiles, DroppedLinkIsItsTargetOrItsIconFile) {
  const std::string icon = folder_.write("i.ico"), other = folder_.write("j.Ico"), program = folder_.write("a.exe");
  EXPECT_EQ(droppedIconFile(putLink("l.lnk", LinkBytes(kInfo | kIcon).info(onDrive(icon)).text(onDrive(other)))), icon);
  EXPECT_EQ(droppedIconFile(putLink("m.lnk", LinkBytes(kInfo | kIcon).info(onDrive(program)).text(onDrive(other)))),
            other);
  EXPECT_EQ(droppedIconFile(putLink("n.lnk", LinkBytes(kInfo | kIcon).info(onDrive(program)).text("C:\\i.ico"))), "");
  EXPECT_EQ(droppedIconFile(folder_.file("missing.lnk")), "");
}

TEST_F(ShortcutFiles, DroppedEntryIsTheIconFileThatItNamesByItsPath) {
  const std::string icon = folder_.write("i.ico"), picture = folder_.write("i.png");
  const auto dropped = [this](const std::string& value) {
    return droppedIconFile(folder_.write("e.desktop", "[Desktop Entry]\nIcon=" + value + "\n"));
  };
  EXPECT_EQ(dropped(icon), icon);
  EXPECT_EQ(dropped(picture), "");
  EXPECT_EQ(dropped("i.ico"), "");
  EXPECT_EQ(dropped("Z:" + icon), "");
  EXPECT_EQ(dropped("/" + icon), "");
}

}  // namespace
}  // namespace gp::test
