// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/guide_window.h"

#include <QFile>
#include <QMessageBox>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace velquon {

namespace {

/// The guide in the language of the windows; in English where it is not translated.
QUrl guide_page() {
  const QString folder =
      GuideWindow::tr("en", "code of this language; names the folder of its guide");
  const QString page = QStringLiteral("/docs/%1/guide.md").arg(folder);
  return QUrl(QStringLiteral("qrc") + (QFile::exists(QLatin1Char(':') + page)
                                           ? QLatin1Char(':') + page
                                           : QStringLiteral(":/docs/guide.md")));
}

}  // namespace

GuideWindow::GuideWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setWindowTitle(tr("Velquon Guide"));
  auto* const browser = new QTextBrowser(this);
  browser->setAccessibleName(tr("Velquon Guide"));
  browser->setFrameShape(QFrame::NoFrame);
  constexpr int text_margin = 18;
  browser->document()->setDocumentMargin(text_margin);
  browser->setSource(guide_page());
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
