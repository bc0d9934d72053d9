// The pane of the animated cursor session on the main form.
#pragma once

class QWidget;

namespace gp {

class AniPane;
class QtDisplay;
class Shell;

// Makes the pane over the right column of the form, and notifies it of changes. Shell and display must outlive it.
AniPane* makeAniPane(QWidget* column, Shell& shell, QtDisplay& display);

}  // namespace gp
