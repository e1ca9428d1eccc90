// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;

namespace velquon {

/// The texts beside a presented view, in letters that are read from afar: white on black, as large as
/// the screen has room for.
class PresentationPanel : public QWidget {
  Q_OBJECT

 public:
  explicit PresentationPanel(QWidget* parent = nullptr);

  /// \param title    what is presented
  /// \param readings what is measured in it; may be empty
  void tell(const QString& title, const QString& readings);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QLabel* title_;
  QLabel* readings_;
};

}  // namespace velquon
