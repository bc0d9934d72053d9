// Opens and saves the film of the animated cursor session.
#pragma once

#include "files/FilesContext.h"

#include <string>

namespace gp {

struct AniChoices;
struct AniState;

class AniFiles {
 public:
  // The state must outlive it.
  AniFiles(const FilesContext& context, AniState& ani) : context_(context), ani_(ani) {}

  // Returns true when no frames are unsaved, or the user agrees to lose them.
  bool mayFramesGo();
  // Asks for a file and opens it.
  void open();
  // Opens a file, which replaces the film. The former film stays when it cannot be read, which is reported.
  void open(const std::string& path);
  // Asks for a name and writes the film, with the chosen hot spot. A failure is reported, and then the frames still
  // count as changed. There must be frames.
  void save();

 private:
  bool maySave(const AniChoices& choices);
  std::string askForName();
  bool write(const std::string& path, const AniChoices& choices);
  void showSaved(const std::string& path, const AniChoices& choices);

  FilesContext context_;
  AniState& ani_;
};

}  // namespace gp
