# Headers that many sources include are compiled once per kind of target. Only headers of the compiler and of libraries
# stand here: a change of ours must not compile one of these lists again.
set(GP_STANDARD_HEADERS
    <algorithm> <array> <cstdint> <filesystem> <functional> <memory> <optional> <span> <string> <string_view> <utility>
    <vector>)
set(GP_QT_HEADERS
    <QApplication> <QCheckBox> <QComboBox> <QDialog> <QDir> <QHBoxLayout> <QImage> <QKeyEvent> <QLabel> <QLineEdit>
    <QMenu> <QMouseEvent> <QPainter> <QPalette> <QPushButton> <QScreen> <QSlider> <QTimer> <QVBoxLayout> <QWidget>)
set(GP_TEST_HEADERS
    ${GP_STANDARD_HEADERS} <fstream> <limits> <map> <random> <set> <sstream> <gtest/gtest.h>)

# gp_precompile_sources(): gives them to the libraries of src/.
#
# The core has none in an ordinary build. So that build proves that each source of the core, and the header which it
# includes first, include what they use; tools/check headers compiles only the other headers alone. The fuzz targets,
# which clang compiles apart from that, have them for the core too.
function(gp_precompile_sources)
  if(TARGET glimmerpane_ui)
    target_precompile_headers(glimmerpane_ui PRIVATE ${GP_STANDARD_HEADERS} ${GP_QT_HEADERS})
  endif()
  if(GLIMMERPANE_FUZZ)
    set(first "")
    foreach(room IN LISTS ROOMS)
      if(NOT TARGET gp_${room})
        continue()
      elseif(first)
        target_precompile_headers(gp_${room} REUSE_FROM ${first})
      else()
        set(first gp_${room})
        target_precompile_headers(${first} PRIVATE ${GP_STANDARD_HEADERS})
      endif()
    endforeach()
  endif()
endfunction()

# gp_precompile_tests(TARGET): gives them to a test program; all of them share those of the first one.
function(gp_precompile_tests target)
  get_property(first GLOBAL PROPERTY gp_first_test)
  if(first)
    target_precompile_headers(${target} REUSE_FROM ${first})
  else()
    set_property(GLOBAL PROPERTY gp_first_test ${target})
    target_precompile_headers(${target} PRIVATE ${GP_TEST_HEADERS})
  endif()
endfunction()
