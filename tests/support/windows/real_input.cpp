// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/real_input.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace velquon::test {

RealInput::RealInput(const QString& commands) {
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process_.start(QStringLiteral("xdotool"), commands.split(QLatin1Char(' ')));
  EXPECT_TRUE(process_.waitForStarted());
}

RealInput::~RealInput() {
  EXPECT_TRUE(process_.state() == QProcess::NotRunning || process_.waitForFinished());
  EXPECT_EQ(process_.exitCode(), 0);
}

QString click_at(const QWidget& widget, QPoint place) {
  const QPointF there = QPointF(widget.mapToGlobal(place)) * widget.devicePixelRatioF();
  return QStringLiteral("mousemove %1 %2 click 1").arg(qRound(there.x())).arg(qRound(there.y()));
}

}  // namespace velquon::test
