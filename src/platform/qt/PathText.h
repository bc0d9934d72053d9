// Converts paths between the program, where they are the file system's bytes, and Qt, where they are UTF-16. Bytes that
// are not UTF-8 are mapped to the lone surrogates U+DC80 to U+DCFF and back, so that a name survives a round trip
// through a widget. Widgets show these bytes as replacement characters.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace gp {

QString pathToText(std::string_view path);
std::string textToPath(QStringView text);

// Returns a text of the program (UTF-8) for a widget. Bytes that are not UTF-8 are kept as in a path.
inline QString toText(std::string_view text) { return pathToText(text); }

// Returns a line of text in which control characters and bytes that are not text are replacement characters.
QString printable(QString line);

}  // namespace gp
