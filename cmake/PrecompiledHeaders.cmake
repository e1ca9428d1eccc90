# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# Headers that most sources include, compiled once for each kind of target: what a source of the windows
# or of a test costs is mostly reading them. CMAKE_DISABLE_PRECOMPILE_HEADERS has each source read them.

set(standard_headers <algorithm> <array> <cmath> <cstdint> <functional> <memory> <optional> <span>
    <string> <vector>)
set(qt_headers <QAction> <QApplication> <QLabel> <QMainWindow> <QMouseEvent> <QOpenGLWidget> <QPainter>
    <QString> <QTimer>)

# add_precompiled_headers(<name> LINK <libraries>... HEADERS <headers>...)
function(add_precompiled_headers name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK;HEADERS")
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// Carries the precompiled headers of ${name}.\n")
  add_library(${name} OBJECT ${source})
  target_link_libraries(${name} PRIVATE ${arg_LINK})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

# use_precompiled_headers(<target> <name>): the target compiles with the options of <name>.
function(use_precompiled_headers target name)
  target_precompile_headers(${target} REUSE_FROM ${name})
endfunction()
