// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "render/glut_start.h"

#include <GL/freeglut.h>

#include <array>
#include <clocale>
#include <string>

namespace velquon {

void need_glut() {
  if (glutGet(GLUT_INIT_STATE) != 0) {
    return;
  }
  const std::string locale = std::setlocale(LC_ALL, nullptr);
  // The options that GLUT knows are not for the user.
  char name[] = "velquon";
  std::array<char*, 2> arguments{name, nullptr};
  int count = 1;
  glutInit(&count, arguments.data());
  std::setlocale(LC_ALL, locale.c_str());
}

}  // namespace velquon
