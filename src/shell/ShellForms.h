// The window operations that the shell requires. The main form implements them.
#pragma once

namespace gp {

// Window geometry in twips (15 per pixel), as stored in the settings file.
struct FormPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool maximized = false;
  bool minimized = false;
};

class ShellForms {
 public:
  virtual ~ShellForms() = default;
  virtual FormPlace place() const = 0;
  virtual void setPlace(const FormPlace& place) = 0;
  virtual void maximize() = 0;
  // Shows frmGPAbout modally.
  virtual void showAbout() = 0;
  // Closes the form, which calls queryUnload first.
  virtual void unload() = 0;
};

}  // namespace gp
