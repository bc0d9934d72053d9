// The title of the main form.
#pragma once

class QWidget;

namespace gp {

struct EditState;

// Titles the form "tools.ico - Glimmerpane" after the Current Icon, with the desktop's mark while it has unsaved
// changes; without an icon, after the program alone.
void showTitle(QWidget& form, const EditState& state);

}  // namespace gp
