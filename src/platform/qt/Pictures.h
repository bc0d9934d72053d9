// The program's own pictures by name: toolbar, tools, pointers, logo and program icon. The pixels are embedded in the
// executable and used in place; no file is loaded or parsed. An unknown name returns an empty picture.
#pragma once

#include <QCursor>
#include <QIcon>
#include <QPixmap>

#include <string_view>

namespace gp {

class Pictures {
 public:
  // Width and height of all pictures except those of message boxes, the logo and the program icon, in
  // device-independent pixels.
  static constexpr int kSize = 20;
  static constexpr int kLogoSize = 64;
  static constexpr int kBoxSize = 40;

  static bool has(std::string_view name);

  // Returns a picture for any size and scale. It uses the application's palette, light or dark, at the time of
  // painting, and is faded for QIcon::Disabled. Null for an unknown name.
  static QIcon icon(std::string_view name);

  // `size` is in device-independent pixels; the pixmap has the given ratio. It is exact for 100, 150 and 200 % of the
  // size for which a picture is drawn, and otherwise scaled from the nearest larger one. The theme is that of the
  // application's palette at the time of the call. Null for an unknown name.
  static QPixmap pixmap(std::string_view name, qreal devicePixelRatio, int size = kSize);

  // Returns a mouse pointer with its hot spot at the picture's tip, and with an outline so that it is visible on any
  // background. Like the Editing Area, it does not change with the theme. An arrow for an unknown name.
  static QCursor cursor(std::string_view name, qreal devicePixelRatio);
};

}  // namespace gp
