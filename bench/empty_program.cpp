// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The least that a program with two OpenGL views costs: what the start and the memory of velquon
// are compared with. Two windows, each a view of velquon's sizes that is cleared to black.

#include <QApplication>
#include <QOpenGLFunctions>
#include <QOpenGLWidget>
#include <QSurfaceFormat>

namespace {

class EmptyView : public QOpenGLWidget {
 protected:
  void paintGL() override {
    QOpenGLFunctions& gl = *context()->functions();
    gl.glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
    gl.glClear(GL_COLOR_BUFFER_BIT);
  }
};

}  // namespace

int main(int argc, char** argv) {
  QSurfaceFormat format;
  format.setVersion(2, 1);
  QSurfaceFormat::setDefaultFormat(format);
  const QApplication application(argc, argv);
  EmptyView large;
  large.resize(682, 500);
  large.move(20, 20);
  EmptyView small;
  small.resize(470, 420);
  small.move(730, 20);
  large.show();
  small.show();
  return QApplication::exec();
}
