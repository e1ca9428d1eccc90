#include "app/gl_panel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

namespace velquon {

namespace {

bool any_window_on_screen() {
  const auto windows = QApplication::topLevelWidgets();
  return std::ranges::any_of(windows, [](const QWidget* window) {
    return qobject_cast<const GLPanel*>(window) != nullptr && window->isVisible();
  });
}

}  // namespace

GLPanel::GLPanel(QWidget* parent) : QMainWindow(parent) {
  setAcceptDrops(true);
}

void GLPanel::makeKeyAndOrderFront() {
  if (isMinimized()) {
    showNormal();
  }
  show();
  raise();
  activateWindow();
}

bool GLPanel::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    Q_EMIT becameKey();
  } else if (event->type() == QEvent::WindowDeactivate) {
    Q_EMIT resignedKey();
  }
  return QMainWindow::event(event);
}

void GLPanel::closeEvent(QCloseEvent* event) {
  event->ignore();
  hide();
  if (!any_window_on_screen()) {
    QCoreApplication::quit();
  }
}

void GLPanel::dragEnterEvent(QDragEnterEvent* event) {
  const auto urls = event->mimeData()->urls();
  if (!urls.isEmpty() && urls.back().isLocalFile()) {
    event->acceptProposedAction();
  }
}

void GLPanel::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  Q_EMIT fileDropped(event->mimeData()->urls().back().toLocalFile());
}

}  // namespace velquon
