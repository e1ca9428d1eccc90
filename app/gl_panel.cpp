#include "app/gl_panel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "platform/window_order.h"

namespace velquon {

namespace {

/// The file that is dragged, the last of several; empty when it is none of this computer.
QString dragged_file(const QMimeData& data) {
  const auto urls = data.urls();
  return urls.isEmpty() ? QString() : urls.back().toLocalFile();
}

}  // namespace

GLPanel::GLPanel(QWidget* parent) : QMainWindow(parent) {
  setAcceptDrops(true);
}

bool GLPanel::anyOnScreen() {
  const auto windows = QApplication::topLevelWidgets();
  return std::ranges::any_of(windows, [](const QWidget* window) {
    return qobject_cast<const GLPanel*>(window) != nullptr && window->isVisible();
  });
}

void GLPanel::setTitle(const QString& title) {
  const QLatin1String mark("[*]");
  title_ = title;
  setWindowTitle(QString(title).replace(mark, QLatin1String("[*][*]")));
}

void GLPanel::makeKeyAndOrderFront() {
  bring_to_front(*this);
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
  if (!anyOnScreen()) {
    QCoreApplication::quit();
  }
}

void GLPanel::dragEnterEvent(QDragEnterEvent* event) {
  if (!dragged_file(*event->mimeData()).isEmpty()) {
    event->acceptProposedAction();
  }
}

void GLPanel::dropEvent(QDropEvent* event) {
  const QString path = dragged_file(*event->mimeData());
  if (!path.isEmpty()) {
    event->acceptProposedAction();
    Q_EMIT fileDropped(path);
  }
}

}  // namespace velquon
