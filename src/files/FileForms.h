// The modal forms that commands on icon files show. The main form implements this interface; each call returns when the
// form is closed.
#pragma once

namespace gp {

class FileForms {
 public:
  virtual ~FileForms() = default;
  // frmGPMultiIcon, with the face that gAddToFile selects.
  virtual void showMultiIcon() = 0;
  // frmGPHeaderDiff.
  virtual void showHeaderDiff() = 0;
};

}  // namespace gp
