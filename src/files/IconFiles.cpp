#include "files/IconFiles.h"

#include "files/IconFileBytes.h"
#include "files/IconLoading.h"
#include "files/IconOpening.h"
#include "platform/text/Paths.h"

namespace gp {
namespace {

constexpr const char* kIconFilter = "Icon files (*.ico)|*.ico|";

}  // namespace

IconFiles::IconFiles(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, MessagePump& pump,
                     clsGPDialog& dialog)
    : context_{state, editor, display, boxes, pump, dialog} {}

void IconFiles::doMnuFileOpenIcon() {
  context_.editor.CommitPendingPaint();
  bool proceed = true;
  if (context_.state.IsIconChanged()) context_.editor.AskSaveCurrent("", proceed);
  if (!proceed) return;

  OpenOptions options;
  options.filter = kIconFilter;
  options.initialFolder = context_.state.process.mLastFolder;
  const std::string path = context_.dialog.ShowOpen(options);
  if (path.empty()) return;
  context_.state.process.mLastFolder = ParseFileName(path, PathPart::DriveAndFolder);

  bool ok = false;
  doOpenIconFile(path, true, ok);
  if (!ok) return;
  context_.state.process.mCommandFile = path;
  context_.editor.chooseColorChart();
}

// Until the browser of multi-icon files is there, such a file opens its chosen entry whatever `useBrowser` says.
void IconFiles::doOpenIconFile(const std::string& path, bool /*useBrowser*/, bool& ok) {
  ok = IconOpening(context_, path, OpeningManner::Spoken).run();
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
