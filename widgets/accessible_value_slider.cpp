// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/accessible_value_slider.h"

#include <QAccessible>
#include <QAccessibleWidget>

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
    return kind == QAccessible::Value
               ? QStringLiteral("%1 %2").arg(slider_->doubleValue()).arg(slider_->unit())
               : QAccessibleWidget::text(kind);
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
  auto* const slider = qobject_cast<ValueSlider*>(object);
  return slider != nullptr ? new AccessibleValueSlider(slider) : nullptr;
}

}  // namespace

void install_accessible_value_sliders() {
  QAccessible::installFactory(make_accessible);
}

}  // namespace velquon
