# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# A folder of the program is a library that sees the headers of its own folder and of those that it
# links, no others: an include of a folder above it finds no file. Each folder is reached through a
# directory of the build that holds nothing but a link to it.

# add_layer(<folder> <sources>... [FORMS] [BELOW <folders>...])
#   FORMS  the folder has Designer forms, or classes with signals
#   BELOW  the folders whose headers it and its users may include
function(add_layer folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "FORMS" "" "BELOW")
  set(root ${PROJECT_BINARY_DIR}/include/${folder})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${folder} SYMBOLIC)
  add_library(${folder} STATIC ${arg_UNPARSED_ARGUMENTS})
  keep_x11_apart(${folder})
  add_library(velquon::${folder} ALIAS ${folder})
  target_include_directories(${folder} PUBLIC ${root})
  target_link_libraries(${folder} PUBLIC ${arg_BELOW})
  if(arg_FORMS)
    set_target_properties(${folder} PROPERTIES AUTOMOC ON AUTOUIC ON)
    target_link_libraries(${folder} PRIVATE window_options)
    use_precompiled_headers(${folder} window_headers)
  endif()
endfunction()
