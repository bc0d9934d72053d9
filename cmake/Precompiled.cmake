# Headers that many sources include are compiled once per kind of target. These lists contain only headers of the
# compiler and of libraries: a change of the program must not cause them to be compiled again.
set(GP_STANDARD_HEADERS
    <algorithm> <array> <cstdint> <filesystem> <functional> <memory> <optional> <span> <string> <string_view> <utility>
    <vector>)
set(GP_QT_HEADERS
    <QApplication> <QCheckBox> <QComboBox> <QDialog> <QDir> <QHBoxLayout> <QImage> <QKeyEvent> <QLabel> <QLineEdit>
    <QMenu> <QMouseEvent> <QPainter> <QPalette> <QPushButton> <QScreen> <QSlider> <QTimer> <QVBoxLayout> <QWidget>)
set(GP_TEST_HEADERS
    ${GP_STANDARD_HEADERS} <fstream> <limits> <map> <random> <set> <sstream> <gtest/gtest.h>)

# gp_precompile_sources(): sets them for the libraries of src/.
#
# In an ordinary build the core has none. So that build checks that each source of the core, and the header that it
# includes first, include what they use; tools/check headers only compiles the other headers on their own. The fuzz
# targets, which clang compiles separately, use them for the core too.
function(gp_precompile_sources)
  if(TARGET glimmerpane_ui)
    target_precompile_headers(glimmerpane_ui PRIVATE ${GP_STANDARD_HEADERS} ${GP_QT_HEADERS})
  endif()
  if(GLIMMERPANE_FUZZ AND CMAKE_CXX_COMPILER_ID MATCHES Clang)
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

# gp_precompile_tests(TARGET): sets them for a test program; all test programs share those of the first one.
function(gp_precompile_tests target)
  get_property(first GLOBAL PROPERTY gp_first_test)
  if(first)
    target_precompile_headers(${target} REUSE_FROM ${first})
  else()
    set_property(GLOBAL PROPERTY gp_first_test ${target})
    target_precompile_headers(${target} PRIVATE ${GP_TEST_HEADERS})
  endif()
endfunction()
