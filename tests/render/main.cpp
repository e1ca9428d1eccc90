// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QSurfaceFormat>

#include "tests/support/test_run.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QSurfaceFormat format;
  format.setRenderableType(QSurfaceFormat::OpenGL);
  format.setVersion(2, 1);
  format.setProfile(QSurfaceFormat::NoProfile);
  QSurfaceFormat::setDefaultFormat(format);
  const QGuiApplication application(argc, argv);
  return velquon::test::run_tests();
}
