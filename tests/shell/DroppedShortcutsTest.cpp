// Shortcuts to icon files that are dropped on a container or on the Editing Area.
#include "support/LinkBytes.h"
#include "support/ShellFixture.h"

#include <algorithm>

namespace gp::test {
namespace {

constexpr std::uint32_t kInfo = 0x2, kIcon = 0x40;

class DroppedShortcuts : public ShellFixture {
 protected:
  IconsPanel& panel = shell.document().iconsPanel;
  const std::string icon = folder.write("a.ico", plainIconFile(16, 3));

  DroppedShortcuts() { start(); }

  std::string writeLink(const LinkBytes& built) {
    return folder.write("l.lnk", std::string(built.bytes().begin(), built.bytes().end()));
  }
  static std::string onDrive(std::string path) {
    std::ranges::replace(path, '/', '\\');
    return "Z:" + path;
  }
  std::string pathIn(std::size_t container) const { return state.mIconRecs.at(container).path.trimmed(); }
};

TEST_F(DroppedShortcuts, AShellLinkOpensTheIconFileThatIsItsTarget) {
  const std::string link = writeLink(LinkBytes(kInfo).info(onDrive(icon)));
  EXPECT_TRUE(panel.PanelDragOver({link}));
  panel.PanelDrop(2, {link});
  EXPECT_EQ(state.mCurContainer, 2);
  EXPECT_EQ(pathIn(2), icon);
  EXPECT_EQ(state.mIconRecs.at(2).size, 16);
}

TEST_F(DroppedShortcuts, AShellLinkToAProgramOpensItsIconFile) {
  const std::string link = writeLink(LinkBytes(kInfo | kIcon).info("C:\\app.exe").text(onDrive(icon)));
  panel.PanelDrop(1, {link});
  EXPECT_EQ(pathIn(1), icon);
}

TEST_F(DroppedShortcuts, ADesktopEntryOpensTheIconFileThatItNames) {
  const std::string entry = folder.write("a.desktop", "[Desktop Entry]\nIcon=" + icon + "\nExec=never\n");
  EXPECT_TRUE(panel.PanelDragOver({entry}));
  panel.AreaDrop({entry});
  EXPECT_EQ(pathIn(0), icon);
}

TEST_F(DroppedShortcuts, OtherShortcutsAreNotTaken) {
  const std::string gone = folder.file("gone.ico");
  const std::string entries[] = {
      folder.write("theme.desktop", "[Desktop Entry]\nIcon=painter\n"),
      folder.write("png.desktop", "[Desktop Entry]\nIcon=" + folder.write("a.png", "") + "\n"),
      folder.write("gone.desktop", "[Desktop Entry]\nIcon=" + gone + "\n"),
      writeLink(LinkBytes(kInfo).info(onDrive(gone))),
  };
  for (const std::string& path : entries) {
    EXPECT_FALSE(panel.PanelDragOver({path})) << path;
    panel.PanelDrop(0, {path});
    EXPECT_FALSE(state.mIconRecs.at(0).used) << path;
  }
}

}  // namespace
}  // namespace gp::test
