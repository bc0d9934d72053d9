// Exchanges frames of the animated cursor session with the Editing Area and with icon files.
#pragma once

#include "files/FilesContext.h"

namespace gp {

struct AniState;

class AniExchange {
 public:
  // The state must outlive it.
  AniExchange(const FilesContext& context, AniState& ani) : context_(context), ani_(ani) {}

  // The Current Icon becomes the picture of the current frame. Refuses icons with alpha and of another size.
  void fromEditingArea();
  // The current frame becomes the Current Icon. Asks first about unsaved work.
  void toEditingArea();
  // Asks for an icon file, whose icon becomes the picture of the current frame.
  void LoadIconFileToFrame();

 private:
  bool isRefused();

  FilesContext context_;
  AniState& ani_;
};

}  // namespace gp
