// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/accessible_controls.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "widgets/gl_view.h"
#include "widgets/value_slider.h"

namespace velquon {

namespace {

class AccessibleValueSlider : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit AccessibleValueSlider(ValueSlider* slider)
      : QAccessibleWidget(slider, QAccessible::Slider), slider_(slider) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) {
      return static_cast<QAccessibleValueInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
  }

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    QString value = QStringLiteral("%1 %2").arg(slider_->doubleValue()).arg(slider_->unit());
    switch (kind) {
      case QAccessible::Value:
        return value;
      case QAccessible::Description:
        // The value that goes over the bus is a number without a unit.
        return QStringLiteral("%1. %2").arg(value, QAccessibleWidget::text(kind));
      default:
        return QAccessibleWidget::text(kind);
    }
  }

  [[nodiscard]] QVariant currentValue() const override { return slider_->doubleValue(); }
  void setCurrentValue(const QVariant& value) override { slider_->moveTo(value.toDouble()); }
  [[nodiscard]] QVariant maximumValue() const override { return slider_->maxValue(); }
  [[nodiscard]] QVariant minimumValue() const override { return slider_->minValue(); }
  [[nodiscard]] QVariant minimumStepSize() const override { return slider_->stepValue(); }

 private:
  ValueSlider* slider_;
};

QAccessibleInterface* make_accessible(const QString& /*key*/, QObject* object) {
  if (auto* const slider = qobject_cast<ValueSlider*>(object)) {
    return new AccessibleValueSlider(slider);
  }
  if (auto* const view = qobject_cast<GLView*>(object)) {
    return new QAccessibleWidget(view, QAccessible::Graphic);
  }
  return nullptr;
}

}  // namespace

void install_accessible_controls() {
  QAccessible::installFactory(make_accessible);
}

}  // namespace velquon
