// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guide/about.h"

#include <QMessageBox>

namespace velquon {

void show_about(QWidget* parent) {
  QMessageBox::about(
      parent, QMessageBox::tr("About Velquon"),
      QMessageBox::tr("<h3>Velquon %1</h3><p>Particle decays in a detector chamber in a magnetic "
                      "field, made by chance and shown in space and in projection.</p>")
          .arg(QStringLiteral(VELQUON_VERSION)));
}

}  // namespace velquon
