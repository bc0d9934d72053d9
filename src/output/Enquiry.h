// The Inquiry menu: information about the Current Icon. It does not change the icon.
#pragma once

#include "document/Context.h"

#include <string>

namespace gp {

class Files;

class Enquiry {
 public:
  Enquiry(const Context& context, Files& files);

  // Each shows one box: the icon's properties, how many colours its image has, and the bytes of its file when saved.
  void showProperties();
  void showColorCount();
  void showByteCount();
  // Shows the headers of the icon's original file.
  void showOriginalHeaders();
  // Shows the icons in the multi-icon file from which the icon was loaded.
  void showIconsInFile();
  // Reveals the hot spot of the cursor from which the icon was loaded.
  void revealHotspot();

 private:
  bool originalIsThere(const std::string& path);

  Context context_;
  EditState& state_;
  Files& files_;
};

}  // namespace gp
