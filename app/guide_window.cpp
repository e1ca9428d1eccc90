// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/guide_window.h"

#include <QMessageBox>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace velquon {

GuideWindow::GuideWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setWindowTitle(tr("Velquon Guide"));
  auto* const browser = new QTextBrowser(this);
  browser->setAccessibleName(tr("Velquon Guide"));
  browser->setFrameShape(QFrame::NoFrame);
  constexpr int text_margin = 18;
  browser->document()->setDocumentMargin(text_margin);
  browser->setSource(QUrl(QStringLiteral("qrc:/docs/guide.md")));
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(browser);
  new QShortcut(QKeySequence(Qt::Key_Escape), this, this, &QWidget::close);
  constexpr QSize window_size(640, 720);
  resize(window_size);
}

void show_about(QWidget* parent) {
  QMessageBox::about(
      parent, QMessageBox::tr("About Velquon"),
      QMessageBox::tr("<h3>Velquon %1</h3><p>Particle decays in a detector chamber in a magnetic "
                      "field, made by chance and shown in space and in projection.</p>")
          .arg(QStringLiteral(VELQUON_VERSION)));
}

}  // namespace velquon
