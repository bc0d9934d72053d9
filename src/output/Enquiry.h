// The Inquiry menu: what the program states about the Current Icon. It changes nothing of the icon itself.
#pragma once

#include "document/Context.h"

#include <string>

namespace gp {

class Files;

class Enquiry {
 public:
  Enquiry(const Context& context, Files& files);

  // The headers of the file that the icon came from, beside its pixels.
  void showOriginalHeaders();
  // The icons in the multi-icon file that the icon came from.
  void showIconsInFile();
  // The hot spot of the cursor that the icon came from.
  void revealHotspot();

 private:
  bool originalIsThere(const std::string& path);

  Context context_;
  EditState& state_;
  Files& files_;
};

}  // namespace gp
