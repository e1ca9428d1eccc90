// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/readable_style.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionSlider>

#include "app/extension_icon.h"
#include "widgets/contrast.h"

namespace velquon {

namespace {

/// A colour for lines on a background: softer than the text beside, and plain to see.
QColor line_color(const QPalette& palette, QPalette::ColorRole background) {
  constexpr float share_of_text = 0.6F;
  const QColor paper = palette.color(background);
  const QColor text = palette.color(QPalette::WindowText);
  const auto mixed = [&](float of_text, float of_paper) {
    return share_of_text * of_text + (1.0F - share_of_text) * of_paper;
  };
  const QColor soft =
      QColor::fromRgbF(mixed(text.redF(), paper.redF()), mixed(text.greenF(), paper.greenF()),
                       mixed(text.blueF(), paper.blueF()));
  return contrast(soft, paper) >= least_contrast ? soft : text;
}

class ReadableStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_PanelButtonTool && option->state.testFlag(State_On)) {
      frameChosen(*option, *painter);
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_Slider || slider == nullptr) {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
      return;
    }
    drawTicks(*slider, *painter, widget);
    QStyleOptionSlider rest = *slider;
    rest.subControls.setFlag(SC_SliderTickmarks, false);
    QProxyStyle::drawComplexControl(control, &rest, painter, widget);
  }

  /// The styles' own for the ends of bars are images of dark lines.
  [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                   const QWidget* widget) const override {
    switch (icon) {
      case SP_ToolBarHorizontalExtensionButton:
        return extension_icon(QGuiApplication::isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
      case SP_ToolBarVerticalExtensionButton:
        return extension_icon(Qt::DownArrow);
      default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
  }

 private:
  static void frameChosen(const QStyleOption& option, QPainter& painter) {
    constexpr qreal width = 2.0;
    constexpr qreal corner = 2.0;
    const QPalette& palette = option.palette;
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    const bool stands_out =
        contrast(highlight, palette.color(QPalette::Button)) >= least_contrast &&
        contrast(highlight, palette.color(QPalette::Window)) >= least_contrast;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(stands_out ? highlight : palette.color(QPalette::ButtonText), width));
    painter.setBrush(Qt::NoBrush);
    constexpr qreal inset = width / 2.0;
    painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), corner,
                            corner);
    painter.restore();
  }

  /// The style draws the marks in a darker shade of the window's colour, which is seen only on
  /// light windows. So it is told of a window whose darker shade is the colour wanted.
  void drawTicks(const QStyleOptionSlider& slider, QPainter& painter, const QWidget* widget) const {
    if (!slider.subControls.testFlag(SC_SliderTickmarks)) {
      return;
    }
    constexpr int darkening = 140;  // percent
    QStyleOptionSlider ticks = slider;
    ticks.subControls = SC_SliderTickmarks;
    ticks.palette.setColor(QPalette::Window,
                           line_color(slider.palette, QPalette::Window).lighter(darkening));
    QProxyStyle::drawComplexControl(CC_Slider, &ticks, &painter, widget);
  }
};

}  // namespace

void make_style_readable() {
  QStyle* const style = QApplication::style();
  if (dynamic_cast<ReadableStyle*>(style) == nullptr) {
    QApplication::setStyle(new ReadableStyle(style->name()));
  }
}

}  // namespace velquon
