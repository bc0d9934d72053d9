// The program's own pictures by name: toolbar, tools, pointers, logo and the program's icon. The pixels are part of the
// program and are used where they stand; nothing is loaded or parsed. A name that is not there gives an empty picture.
#pragma once

#include <QCursor>
#include <QIcon>
#include <QPixmap>

#include <string_view>

namespace gp {

class Pictures {
 public:
  // The width and height of all pictures but the logo and the program's icon, in device-independent pixels.
  static constexpr int kSize = 20;
  static constexpr int kLogoSize = 64;

  static bool has(std::string_view name);

  // A picture at any size and scale. It follows the application's palette, light or dark, each time it is painted, and
  // has a faded look for QIcon::Disabled. Null for an unknown name.
  static QIcon icon(std::string_view name);

  // `size` is in device-independent pixels; the pixmap carries the ratio. It is exact for 100, 150 and 200 % of the
  // size that a picture is drawn for, and scaled from the nearest larger one otherwise. The theme is the one that the
  // application's palette has at this moment. Null for an unknown name.
  static QPixmap pixmap(std::string_view name, qreal devicePixelRatio, int size = kSize);

  // A mouse pointer with its hot spot at the picture's tip and an outline that shows on any ground. It does not change
  // with the theme, as the Editing Area does not. An arrow for an unknown name.
  static QCursor cursor(std::string_view name, qreal devicePixelRatio);
};

}  // namespace gp
