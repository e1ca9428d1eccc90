# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# A build with CMAKE_UNITY_BUILD compiles several sources of a target as one, which takes less than half
# the time: most of it goes into the headers of Qt and the standard library.

# keep_x11_apart(<target>): sources with the X library's headers, whose macros have common words as names,
# are compiled by themselves.
function(keep_x11_apart target)
  get_target_property(sources ${target} SOURCES)
  foreach(source IN LISTS sources)
    if(source MATCHES "\\.cpp$")
      file(STRINGS ${source} x11 REGEX "#include <X11/" LIMIT_COUNT 1)
      if(x11)
        set_source_files_properties(${source} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
      endif()
    endif()
  endforeach()
endfunction()
