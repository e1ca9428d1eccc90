# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# Compiler settings that every target of this project links PRIVATE.

add_library(project_options INTERFACE)

target_compile_options(project_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wdouble-promotion
  -Wold-style-cast -Wcast-align -Wcast-qual -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2
  -Wimplicit-fallthrough -Wnull-dereference -Wundef -Wextra-semi -Wredundant-decls
  -Wzero-as-null-pointer-constant -Wmissing-declarations)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(project_options INTERFACE
    -Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wuseless-cast -Wsuggest-override)
else()
  target_compile_options(project_options INTERFACE
    -Wunreachable-code-aggressive -Wcomma -Wnewline-eof -Winconsistent-missing-destructor-override)
endif()

# A source's own names are no global ones, but stand before those of the sources compiled after it as one.
set(in_unity $<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>)
target_compile_options(project_options INTERFACE "$<$<NOT:${in_unity}>:-Wshadow>")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(project_options INTERFACE
    "$<${in_unity}:-Wshadow=local>" "$<${in_unity}:-Wno-subobject-linkage>")
endif()

if(VELQUON_WARNINGS_AS_ERRORS)
  target_compile_options(project_options INTERFACE -Werror)
endif()

if(VELQUON_SANITIZER)
  target_compile_options(project_options INTERFACE
    -fsanitize=${VELQUON_SANITIZER} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(project_options INTERFACE -fsanitize=${VELQUON_SANITIZER})
endif()

# Files beyond 2 GiB, and on a PC of 32 bits arithmetic without the extra digits of its old unit, by which
# a seed would give another event.
include(CheckCXXSourceCompiles)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_compile_definitions(project_options INTERFACE _FILE_OFFSET_BITS=64)
  check_cxx_source_compiles("#ifndef __i386__\n#error other\n#endif\nint main() {}" IS_I386)
  if(IS_I386)
    target_compile_options(project_options INTERFACE -msse2 -mfpmath=sse)
  endif()
endif()

# What an optimised program costs nothing and an attacker much: as Debian builds its packages. The
# sanitizers look closer.
if(NOT VELQUON_SANITIZER)
  set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
  target_compile_options(project_options INTERFACE
    "$<${optimised}:-fstack-protector-strong;-Werror=format-security>"
    "$<${optimised}:SHELL:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>")
  target_link_options(project_options INTERFACE
    "$<${optimised}:-pie;-Wl,-z,relro;-Wl,-z,now>")
endif()

# One seed gives one event, whichever compiler and build: no fused products and sums. errno is not read, so the
# compiler may join a sine and a cosine of the same angle; that changes no value.
add_library(physics_options INTERFACE)
target_compile_options(physics_options INTERFACE -ffp-contract=off -fno-math-errno)
target_link_libraries(physics_options INTERFACE project_options)
if(NOT VELQUON_SANITIZER)
  # Qt asks for -fPIC itself.
  target_compile_options(physics_options INTERFACE $<${optimised}:-fPIE>)
else()
  # The preset asan does not optimize: that would take most of the build's time, for what the sanitizers add.
  # It pays for what every event runs through.
  target_compile_options(physics_options INTERFACE $<$<CONFIG:Debug>:-O1>)
endif()

# Of Qt without windows.
add_library(qt_rules INTERFACE)
target_compile_definitions(qt_rules INTERFACE
  QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_link_libraries(qt_rules INTERFACE project_options)

add_library(qt_options INTERFACE)
target_link_libraries(qt_options INTERFACE
  qt_rules Qt6::Widgets Qt6::OpenGLWidgets Qt6::PrintSupport)

# Windows spend their time in Qt: small code is read sooner at the start and takes less memory, and is compiled
# sooner. The physics and the chamber's scene (render/) are optimized for their speed.
add_library(window_options INTERFACE)
target_compile_options(window_options INTERFACE $<$<CONFIG:Release>:-Os>)
target_link_libraries(window_options INTERFACE qt_options)

# Tests spend their time in the libraries that they test, not in their own code.
add_library(test_options INTERFACE)
target_include_directories(test_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(test_options INTERFACE
  "$<$<CONFIG:Release,RelWithDebInfo>:SHELL:-O0 -U_FORTIFY_SOURCE>")
target_link_libraries(test_options INTERFACE project_options)
