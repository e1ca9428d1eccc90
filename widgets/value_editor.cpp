// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/value_editor.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLocale>
#include <algorithm>
#include <utility>

namespace velquon {

void ValueEditor::open(QWidget& label, const ValueBounds& bounds, double value,
                       const std::function<void(double)>& take) {
  auto* const editor = new ValueEditor(label, bounds, value, take);
  QWidget& window = *label.window();
  // Wider than the label, where the window has room for it.
  const QSize size = editor->sizeHint().expandedTo(label.size());
  QPoint corner =
      label.mapTo(&window, label.rect().center()) - QPoint(label.width() / 2, size.height() / 2);
  corner.setX(std::clamp(corner.x(), 0, std::max(window.width() - size.width(), 0)));
  corner.setY(std::clamp(corner.y(), 0, std::max(window.height() - size.height(), 0)));
  editor->setGeometry(QRect(corner, size));
  editor->show();
  editor->setFocus(Qt::OtherFocusReason);
  editor->selectAll();
}

void ValueEditor::finish(const QWidget& label) {
  const auto editors = label.window()->findChildren<ValueEditor*>();
  for (ValueEditor* const editor : editors) {
    if (&editor->label_ == &label) {
      editor->close(true);
    }
  }
}

ValueEditor::ValueEditor(QWidget& label, const ValueBounds& bounds, double value,
                         std::function<void(double)> take)
    : QDoubleSpinBox(label.window()), label_(label), take_(std::move(take)) {
  setObjectName(label.objectName() + QStringLiteral("_editor"));
  setAccessibleName(tr("Value"));
  setLocale(QLocale::c());
  setDecimals(bounds.decimals);
  setRange(bounds.least, bounds.most);
  setSuffix(QLatin1Char(' ') + bounds.unit);
  setButtonSymbols(NoButtons);
  setKeyboardTracking(false);
  setValue(value);
  // What the box makes of the value.
  // NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer)
  shown_ = this->value();
  setToolTip(
      tr("%1 to %2 %3").arg(textFromValue(bounds.least), textFromValue(bounds.most), bounds.unit));
}

QString ValueEditor::textFromValue(double value) const {
  QString text = QLocale::c().toString(value, 'f', decimals());
  while (text.contains(QLatin1Char('.')) &&
         (text.endsWith(QLatin1Char('0')) || text.endsWith(QLatin1Char('.')))) {
    const bool was_point = text.endsWith(QLatin1Char('.'));
    text.chop(1);
    if (was_point) {
      break;
    }
  }
  return text;
}

double ValueEditor::valueFromText(const QString& text) const {
  return QDoubleSpinBox::valueFromText(QString(text).replace(QLatin1Char(','), QLatin1Char('.')));
}

QValidator::State ValueEditor::validate(QString& text, int& position) const {
  text.replace(QLatin1Char(','), QLatin1Char('.'));
  return QDoubleSpinBox::validate(text, position);
}

void ValueEditor::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      close(true);
      return;
    case Qt::Key_Escape:
      close(false);
      return;
    default:
      QDoubleSpinBox::keyPressEvent(event);
  }
}

void ValueEditor::focusOutEvent(QFocusEvent* event) {
  QDoubleSpinBox::focusOutEvent(event);
  // The menu of the field itself is no click elsewhere.
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
    close(true);
  }
}

void ValueEditor::close(bool takes) {
  // Once: hiding takes the focus away.
  const auto take = std::exchange(take_, nullptr);
  if (!take) {
    return;
  }
  interpretText();
  const double typed = value();
  const bool had_focus = hasFocus();
  hide();
  deleteLater();
  if (had_focus) {
    label_.setFocus(Qt::OtherFocusReason);
  }
  // What was only looked at keeps digits that are not shown.
  if (takes && typed != shown_) {
    take(typed);
  }
}

}  // namespace velquon
