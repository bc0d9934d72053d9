// Templates that name the body of a command table row: call<&IconSaver::doFileSave>, with fixed arguments
// call<&IconSaver::doNewIcon, 32>, or with the control's index callWithIndex<&Tools::setBrush>.
#pragma once

#include "effects/ConfinePanel.h"
#include "effects/ResizePanel.h"
#include "shell/Shell.h"

#include <type_traits>

namespace gp::bodies {

// Returns the object whose method a command calls.
inline Shell& ownerIn(Shell& shell, std::type_identity<Shell>) { return shell; }
inline EditingAreaOptions& ownerIn(Shell& shell, std::type_identity<EditingAreaOptions>) {
  return shell.document().areaOptions;
}
inline PaletteFile& ownerIn(Shell& shell, std::type_identity<PaletteFile>) { return shell.colour().paletteFile; }
inline ColorSelection& ownerIn(Shell& shell, std::type_identity<ColorSelection>) { return shell.colour().selection; }
inline Tools& ownerIn(Shell& shell, std::type_identity<Tools>) { return shell.drawing().tools; }
inline UndoCommands& ownerIn(Shell& shell, std::type_identity<UndoCommands>) { return shell.drawing().undo; }
inline ClipboardCommands& ownerIn(Shell& shell, std::type_identity<ClipboardCommands>) {
  return shell.drawing().clipboardCommands;
}
inline ContainerCopies& ownerIn(Shell& shell, std::type_identity<ContainerCopies>) {
  return shell.drawing().containerCopies;
}
inline Transforms& ownerIn(Shell& shell, std::type_identity<Transforms>) { return shell.drawing().transforms; }
inline IconFiles& ownerIn(Shell& shell, std::type_identity<IconFiles>) { return shell.files().iconFiles; }
inline CursorFiles& ownerIn(Shell& shell, std::type_identity<CursorFiles>) { return shell.files().cursorFiles; }
inline IconSaver& ownerIn(Shell& shell, std::type_identity<IconSaver>) { return shell.files().iconSaver; }
inline MultiIconCommands& ownerIn(Shell& shell, std::type_identity<MultiIconCommands>) {
  return shell.files().multiIcon;
}
inline AlphaCommands& ownerIn(Shell& shell, std::type_identity<AlphaCommands>) { return shell.alpha().commands; }
inline Effects& ownerIn(Shell& shell, std::type_identity<Effects>) { return shell.effects(); }
inline ResizePanel& ownerIn(Shell& shell, std::type_identity<ResizePanel>) {
  return shell.effects().panel<ResizePanel>();
}
inline IconsList& ownerIn(Shell& shell, std::type_identity<IconsList>) { return shell.extraction().list; }
inline SearchPanel& ownerIn(Shell& shell, std::type_identity<SearchPanel>) { return shell.extraction().search; }
inline AniSession& ownerIn(Shell& shell, std::type_identity<AniSession>) { return shell.animation().session; }
inline Enquiry& ownerIn(Shell& shell, std::type_identity<Enquiry>) { return shell.output().enquiry; }
inline PreviewPanel& ownerIn(Shell& shell, std::type_identity<PreviewPanel>) { return shell.output().previewPanel; }

template <class Method>
struct OwnerOf;
template <class Owner, class... Parameters>
struct OwnerOf<void (Owner::*)(Parameters...)> {
  using Type = Owner;
};

template <auto kMethod>
auto& ownerOf(Shell& shell) {
  return ownerIn(shell, std::type_identity<typename OwnerOf<decltype(kMethod)>::Type>());
}

// Calls the method with fixed arguments.
template <auto kMethod, auto... kArguments>
void call(Shell& shell, int /*index*/) {
  (ownerOf<kMethod>(shell).*kMethod)(kArguments...);
}

// Calls the method with the control's index.
template <auto kMethod>
void callWithIndex(Shell& shell, int index) {
  (ownerOf<kMethod>(shell).*kMethod)(index);
}

inline void confineColors(Shell& shell, int index) { shell.effects().panel<ConfinePanel>().doConfineColors(index); }

// Closes an open side panel first, which would hide the frame.
template <auto kShowFrame>
void showColorFrame(Shell& shell, int index) {
  shell.closePanels();
  call<kShowFrame>(shell, index);
}

}  // namespace gp::bodies
