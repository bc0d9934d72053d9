#include "files/opening/IconFiles.h"

#include "files/FileQuestions.h"
#include "files/format/IconFile.h"
#include "files/opening/IconLoading.h"
#include "files/opening/IconOpening.h"

namespace gp {

IconFiles::IconFiles(const FilesContext& context, MultiIconCommands& multiIcon)
    : context_(context), multiIcon_(multiIcon) {}

void IconFiles::doMnuFileOpenIcon() {
  openChosenFile(context_, kIconFilter, [this](const std::string& path, bool& ok) { doOpenIconFile(path, true, ok); });
}

void IconFiles::doOpenIconFile(const std::string& path, bool useBrowser, bool& ok) {
  const OpeningManner manner = useBrowser ? OpeningManner::Browsed : OpeningManner::Spoken;
  ok = IconOpening(context_, path, manner, multiIcon_).run();
}

void IconFiles::doOpenIconFileQuietly(const std::string& path, bool& ok) {
  ok = IconOpening(context_, path, OpeningManner::Quiet, multiIcon_).run();
}

void IconFiles::loadIconFileToContainer(const std::string& path, bool& ok) {
  ok = IconOpening(context_, path, OpeningManner::Stored, multiIcon_).run();
}

void IconFiles::offerIconsOfFile(const std::string& path, int container) {
  IconOpening(context_, path, OpeningManner::Browsed, multiIcon_).offerIcons(container);
}

DecodedIcon IconFiles::ReadIconFileToImage(const std::string& path, int index, bool checkSize,
                                           const std::optional<ReadSize>& size) {
  const auto file = readIconFile(path);
  if (!file) return {IconDefect::NotReadable, {}};
  return loadIconImage(*file, index, checkSize, size);
}

}  // namespace gp
