// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDoubleSpinBox>
#include <QString>
#include <functional>

class QWidget;

namespace velquon {

/// What a typed value may be.
struct ValueBounds {
  double least = 0.0;
  double most = 0.0;
  int decimals = 0;  ///< most digits behind the point
  QString unit;
};

/// A field over a label to type an exact value into. Return or a click elsewhere takes what is typed,
/// Escape leaves the value as it was; either way the field goes and the label gets the focus back. A
/// comma counts as a decimal point.
class ValueEditor : public QDoubleSpinBox {
  Q_OBJECT

 public:
  /// Opens an editor; there is one at most over a label.
  /// \param take called with the value that is typed, unless it is given up or as it was
  static void open(QWidget& label, const ValueBounds& bounds, double value,
                   const std::function<void(double)>& take);

  /// Takes what is typed in the editor over a label, if there is one.
  static void finish(const QWidget& label);

  QString textFromValue(double value) const override;
  double valueFromText(const QString& text) const override;
  QValidator::State validate(QString& text, int& position) const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  ValueEditor(QWidget& label, const ValueBounds& bounds, double value,
              std::function<void(double)> take);
  void close(bool takes);

  QWidget& label_;
  std::function<void(double)> take_;
  double shown_ = 0.0;  ///< at first, rounded to the digits
};

}  // namespace velquon
