// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "widgets/legend.h"

class QLabel;

namespace velquon {

class PresentedLegend;

/// What is told beside a presented view.
struct PresentedTexts {
  QString title;                     ///< what is presented
  std::vector<LegendLine> legend{};  ///< of its colours
  QString readings{};                ///< what is measured in it
};

/// The texts beside a presented view, in letters that are read from afar: white on black, as large as
/// the screen has room for.
class PresentationPanel : public QWidget {
  Q_OBJECT

 public:
  explicit PresentationPanel(QWidget* parent = nullptr);

  void tell(const PresentedTexts& texts);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QLabel* title_;
  PresentedLegend* legend_;
  QLabel* readings_;
};

}  // namespace velquon
