// What mouse and keyboard do on the Editing Area reaches the drawing tools, which describe its pixels.
#pragma once

namespace gp {

class EditingAreaView;
class Shell;

// Connects the view with the tools, for as long as the view lives. The shell must outlive it.
void connectTools(EditingAreaView& view, Shell& shell);

}  // namespace gp
