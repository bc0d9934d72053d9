#include "colour/PaletteFile.h"

#include "colour/ColorMixer.h"
#include "document/Editor.h"
#include "platform/dialogs/StartFolder.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/files/BitmapFile.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/PictureLoader.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace gp {

namespace {

// Pixels by which a picture may exceed the strip in each direction.
constexpr int kTolerance = 2;
// Pictures up to this size are read before they are refused, to tell an incomplete picture from one too large.
constexpr int kLargestRead = 1024;

constexpr const char* kExtension = "pal";
constexpr const char* kSaveFilter = "Palette file (*.pal)|*.*|";
constexpr const char* kOpenFilter = "Palette file (*.pal)|*.pal|";

constexpr const char* kTooSmall = "Not a valid pal file for Glimmerpane (1)";
constexpr const char* kTooLarge = "Not a valid pal file for Glimmerpane (2)";
constexpr const char* kInvalid = "Invalid pal for Glimmerpane";

// Returns the message that refuses a picture, null when it is accepted.
const char* refusalOf(const LoadedPicture& picture) {
  if (picture.problem == PictureProblem::Unreadable) return kInvalid;
  if (picture.width < kMixGradientWidth || picture.height < kMixGradientHeight) return kTooSmall;
  if (picture.width > kMixGradientWidth + kTolerance || picture.height > kMixGradientHeight + kTolerance)
    return kTooLarge;
  return nullptr;
}

}  // namespace

PaletteFile::PaletteFile(const Context& context, clsGPDialog& dialog, PictureLoader& loader, ColorMixer& mixer,
                         std::string folder)
    : context_(context), dialog_(dialog), loader_(loader), mixer_(mixer), folder_(std::move(folder)) {}

void PaletteFile::prepareDialog() {
  context_.editor.closePanels();
  std::error_code ignored;
  std::filesystem::current_path(folder_, ignored);
}

void PaletteFile::imgLoadPalette() {
  prepareDialog();
  OpenOptions options;
  options.filter = kOpenFilter;
  options.initialFolder = folder_;
  options.defaultExtension = kExtension;
  const std::string path = dialog_.ShowOpen(options);
  if (!path.empty()) load(path);
}

void PaletteFile::load(const std::string& path) {
  const LoadedPicture loaded = loader_.loadPicture(path, kLargestRead, kLargestRead);
  if (const char* refusal = refusalOf(loaded))
    context_.boxes.tell(refusal);
  else
    mixer_.takeGradient(loaded.picture);
}

void PaletteFile::imgSavePalette() {
  prepareDialog();
  SaveOptions options;
  options.filter = kSaveFilter;
  options.initialFolder = existingStartFolder(context_.boxes, folder_);
  options.defaultExtension = kExtension;
  const std::string path = dialog_.ShowSave(options);
  if (path.empty() || writeBitmap(mixer_.picMixGradient(), path)) return;
  context_.editor.ShowRunTimeError("imgSavePalette_Click", "The palette file cannot be written");
}

}  // namespace gp
