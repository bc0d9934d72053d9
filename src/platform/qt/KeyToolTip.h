// The rich text of a tooltip that names a key.
#pragma once

class QPalette;
class QString;

namespace gp {

// Returns the tooltip followed by the key in a grey between the palette's colours of tooltips, in one line.
QString toolTipWithKey(const QString& toolTip, const QString& key, const QPalette& palette);

}  // namespace gp
