// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/gl_panel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "widgets/scrolling_content.h"
#include "widgets/window_order.h"

namespace velquon {

namespace {

/// The file that is dragged, the last of several; empty when it is none of this computer.
QString dragged_file(const QMimeData& data) {
  const auto urls = data.urls();
  return urls.isEmpty() ? QString() : urls.back().toLocalFile();
}

/// Takes a copy, whatever the other program proposes: after a move it would delete the file.
void take_copy(QDropEvent& event) {
  event.setDropAction(Qt::CopyAction);
  event.accept();
}

}  // namespace

GLPanel::GLPanel(QWidget* parent) : QMainWindow(parent) {
  setAcceptDrops(true);
  // The usual menu of a main window hides its tool bar, and nothing would bring that back.
  setContextMenuPolicy(Qt::NoContextMenu);
}

bool GLPanel::anyOnScreen() {
  const auto windows = QApplication::topLevelWidgets();
  return std::ranges::any_of(windows, [](const QWidget* window) {
    return qobject_cast<const GLPanel*>(window) != nullptr && window->isVisible();
  });
}

GLPanel* GLPanel::inFront() {
  GLPanel* latest = nullptr;
  const auto windows = QApplication::topLevelWidgets();
  for (QWidget* const window : windows) {
    auto* const panel = qobject_cast<GLPanel*>(window);
    if (panel != nullptr && panel->isVisible() &&
        (latest == nullptr || panel->came_to_front_ > latest->came_to_front_)) {
      latest = panel;
    }
  }
  return latest;
}

void GLPanel::setContent(QWidget* content) {
  setCentralWidget(new ScrollingContent(content));
}

void GLPanel::setTitle(const QString& title) {
  const QLatin1String mark("[*]");
  title_ = title;
  setWindowTitle(QString(title).replace(mark, QLatin1String("[*][*]")));
}

QSize GLPanel::sizeHint() const {
  const QWidget* const bar = menuWidget();
  return QMainWindow::sizeHint().expandedTo({bar != nullptr ? bar->sizeHint().width() : 0, 0});
}

void GLPanel::makeKeyAndOrderFront() {
  came_to_front_ = std::chrono::steady_clock::now();
  bring_to_front(*this);
}

bool GLPanel::event(QEvent* event) {
  // The X server may tell of the focus after the window was hidden: it counts when that is shown
  // again.
  const QEvent::Type type = event->type();
  if ((type == QEvent::WindowActivate && isVisible()) ||
      (type == QEvent::Show && isActiveWindow())) {
    came_to_front_ = std::chrono::steady_clock::now();
    Q_EMIT becameKey();
  } else if (type == QEvent::WindowDeactivate) {
    Q_EMIT resignedKey();
  }
  return QMainWindow::event(event);
}

void GLPanel::closeEvent(QCloseEvent* event) {
  event->ignore();
  hide();
  if (!anyOnScreen()) {
    QCoreApplication::quit();
  }
}

void GLPanel::dragEnterEvent(QDragEnterEvent* event) {
  if (!fileToTake(*event).isEmpty()) {
    take_copy(*event);
  }
}

void GLPanel::dropEvent(QDropEvent* event) {
  const QString path = fileToTake(*event);
  if (!path.isEmpty()) {
    take_copy(*event);
    came_to_front_ = std::chrono::steady_clock::now();
    Q_EMIT fileDropped(path);
  }
}

bool GLPanel::takesFiles() const {
  return QApplication::activeModalWidget() == nullptr && (!may_take_files_ || may_take_files_());
}

QString GLPanel::fileToTake(const QDropEvent& event) const {
  return takesFiles() ? dragged_file(*event.mimeData()) : QString();
}

}  // namespace velquon
