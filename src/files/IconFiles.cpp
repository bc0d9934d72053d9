#include "files/IconFiles.h"

#include "files/FileQuestions.h"
#include "files/IconFileBytes.h"
#include "files/IconLoading.h"
#include "files/IconOpening.h"

namespace gp {

IconFiles::IconFiles(const FilesContext& context, MultiIconCommands& multiIcon)
    : context_(context), multiIcon_(multiIcon) {}

void IconFiles::doMnuFileOpenIcon() {
  openChosenFile(context_, kIconFilter, [this](const std::string& path, bool& ok) { doOpenIconFile(path, true, ok); });
}

void IconFiles::doOpenIconFile(const std::string& path, bool useBrowser, bool& ok) {
  ok = IconOpening(context_, path, OpeningManner::Spoken, useBrowser ? &multiIcon_ : nullptr).run();
}

void IconFiles::doOpenIconFileQuietly(const std::string& path, bool& ok) {
  ok = IconOpening(context_, path, OpeningManner::Quiet).run();
}

void IconFiles::ReadIconFileToImage(const std::string& path, int index, Surface& imageSurface, Surface& maskSurface,
                                    bool sizeFromSurface, bool checkSize, bool /*reserved*/, bool& ok) {
  const auto bytes = readIconFile(path);
  const auto sizeSource = sizeFromSurface ? SizeSource::Surface : SizeSource::Entry;
  ok = bytes && loadIconPixels(bytes->span(), index, sizeSource, checkSize, context_.state, imageSurface,
                               maskSurface) == IconDefect::None;
}

}  // namespace gp
