# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# Headers that most sources include, compiled once for each kind of target: what a source of the windows
# or of a test costs is mostly reading them.

option(VELQUON_PRECOMPILED_HEADERS "Compile the headers that most sources include once" ON)

set(standard_headers <algorithm> <array> <cmath> <cstdint> <functional> <memory> <optional> <span>
    <string> <vector>)
set(qt_headers <QAction> <QApplication> <QLabel> <QMainWindow> <QMouseEvent> <QOpenGLWidget> <QPainter>
    <QString> <QTimer>)

# add_precompiled_headers(<name> LINK <libraries>... HEADERS <headers>...)
function(add_precompiled_headers name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK;HEADERS")
  if(NOT VELQUON_PRECOMPILED_HEADERS)
    return()
  endif()
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// Carries the precompiled headers of ${name}.\n")
  add_library(${name} OBJECT ${source})
  target_link_libraries(${name} PRIVATE ${arg_LINK})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

# use_precompiled_headers(<target> <name>): the target compiles with the options of <name>.
function(use_precompiled_headers target name)
  if(VELQUON_PRECOMPILED_HEADERS)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()
