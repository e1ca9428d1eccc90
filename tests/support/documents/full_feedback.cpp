// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// An OpenGL driver that finds every feedback buffer too small, whatever is drawn. Loaded ahead of
// the library that it stands for.

#include <GL/gl.h>

extern "C" {

__attribute__((visibility("default"))) GLint glRenderMode(GLenum mode) {
  return mode == GL_RENDER ? -1 : 0;
}

}  // extern "C"
