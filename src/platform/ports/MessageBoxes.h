// The port for message boxes. Their title is "Glimmerpane".
#pragma once

#include <string>

namespace gp {

inline constexpr const char* kProgramName = "Glimmerpane";

enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class BoxIcon { None, Information, Question, Exclamation };
enum class BoxAnswer { Ok, Yes, No, Cancel };

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  // Shows a box and waits for the answer; closing the box without a button returns Ok, No or Cancel. `suggested` is the
  // default button: the answer that loses nothing.
  virtual BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer suggested) = 0;

  void tell(const std::string& text, BoxIcon icon = BoxIcon::None) { show(text, BoxButtons::Ok, icon, BoxAnswer::Ok); }
  // Shows a Yes/No box. Returns true for Yes only.
  bool ask(const std::string& text, BoxAnswer suggested = BoxAnswer::No) {
    return show(text, BoxButtons::YesNo, BoxIcon::Question, suggested) == BoxAnswer::Yes;
  }
};

}  // namespace gp
