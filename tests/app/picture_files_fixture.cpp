// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/picture_files_fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QSpinBox>
#include <QTest>

#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/modal.h"

namespace velquon::test {

namespace {

/// Chooses in the panel as a person does.
void choose_in(QWidget& panel, const PictureChoices& choices) {
  auto& scale = *panel.findChild<QSpinBox*>(QStringLiteral("picture_scale_box"));
  scale.selectAll();
  QTest::keyClicks(&scale, QString::number(choices.scale));
  for (const auto& [name, on] : {std::pair("picture_values_check", choices.values),
                                 std::pair("picture_legend_check", choices.legend)}) {
    auto& check = *panel.findChild<QCheckBox*>(QLatin1String(name));
    if (check.isEnabled() && check.isChecked() != on) {
      QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(8, check.height() / 2));
    }
  }
  if (auto* const formats = panel.findChild<QComboBox*>(QStringLiteral("picture_format_popup"))) {
    QTest::keyClick(formats, "PSP"[static_cast<int>(choices.format)]);
    formats->setCurrentIndex(static_cast<int>(choices.format));
  }
}

}  // namespace

void PictureFilesFixture::SetUp() {
  DocumentsFixture::SetUp();
  showTracks();
}

void PictureFilesFixture::showTracks() {
  ASSERT_TRUE(
      documents().readAndDisplayFile(write(QStringLiteral("event.cwd"), event_file(spiral(60)))));
}

QString PictureFilesFixture::save(QWidget& window, const PictureChoices& choices,
                                  const QString& name) {
  activate(window);
  dialogs().answer = path(name);
  QString told;
  EXPECT_TRUE(with_dialogs(
      [&] {
        QTest::keyClick(window.windowHandle(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
      },
      {{"velquon::PicturePanel", [&](QWidget& panel) {
          choose_in(panel, choices);
          told = panel.findChild<QLabel*>(QStringLiteral("picture_size_label"))->text();
          QTest::keyClick(&panel, Qt::Key_Return);
        }}}));
  return told;
}

QImage PictureFilesFixture::saved(QWidget& window, const PictureChoices& choices) {
  const QString name = QStringLiteral("picture.png");
  const QString told = save(window, choices, name);
  EXPECT_TRUE(dialogs().alerts.empty());
  const QImage file(path(name));
  QImage picture = file.convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(told, QStringLiteral("%1 × %2 pixels").arg(picture.width()).arg(picture.height()));
  return picture;
}

QImage PictureFilesFixture::copied(QWidget& window) {
  activate(window);
  QApplication::clipboard()->clear();
  QTest::keyClick(window.windowHandle(), Qt::Key_C, Qt::ControlModifier);
  return QApplication::clipboard()->image();
}

QStringList PictureFilesFixture::files() {
  return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

}  // namespace velquon::test
