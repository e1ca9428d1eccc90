// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/scrolling_content.h"

namespace velquon {

ScrollingContent::ScrollingContent(QWidget* content) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  // What is in it gets the focus; a control that does is scrolled into sight.
  setFocusPolicy(Qt::NoFocus);
  setWidget(content);
}

QSize ScrollingContent::sizeHint() const {
  return widget()->sizeHint();
}

QSize ScrollingContent::minimumSizeHint() const {
  // With menus, tool bar and frame that is still within any screen.
  constexpr QSize small_enough(400, 240);
  return widget()->minimumSizeHint().boundedTo(small_enough);
}

}  // namespace velquon
