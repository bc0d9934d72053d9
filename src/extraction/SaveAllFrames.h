// cmdSaveAllExtractToFiles: saves the frames of an animated cursor, each in a file, after the user's consent.
#pragma once

#include "extraction/ListWork.h"
#include "files/FilesContext.h"

#include <string>
#include <vector>

namespace gp {

class AniSource;
struct IconImage;
struct NumberedFrame;

enum class SavedFrames { Icons = 0, Bitmaps = 1 };

class SaveAllFrames {
 public:
  // `work` must outlive it.
  SaveAllFrames(const FilesContext& context, ListWork& work) : context_(context), work_(work) {}

  // Frames that cannot be drawn are left out. `source` is null without a list of frames.
  void run(AniSource* source, SavedFrames kind);

 private:
  std::string askForStem(const std::string& file);
  bool agrees(const std::string& stem, const std::vector<NumberedFrame>& frames, SavedFrames kind);
  void save(const std::string& stem, const std::vector<NumberedFrame>& frames, SavedFrames kind);

  FilesContext context_;
  ListWork& work_;
};

}  // namespace gp
