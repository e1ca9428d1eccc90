// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/pictures.h"

#include <QBuffer>
#include <QDir>
#include <QEventLoop>
#include <QMenu>
#include <QTimer>
#include <QWindow>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <functional>
#include <optional>

#include "app/application.h"
#include "app/command_line.h"
#include "app/menus.h"
#include "chamber/chamber_view.h"
#include "chamber/chamber_window.h"
#include "events/event_types.h"
#include "printing/whole_file.h"
#include "projection/projection_view.h"
#include "projection/projector_window.h"
#include "ui_menus.h"

namespace velquon {

namespace {

constexpr int longest_wait = 30'000;  // milliseconds

/// Runs the event loop until a condition holds.
/// \return whether it does
bool wait_until(const std::function<bool()>& holds) {
  QEventLoop loop;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
    if (holds()) {
      loop.quit();
    }
  });
  poll.start(5);
  QTimer give_up;
  QObject::connect(&give_up, &QTimer::timeout, &loop, &QEventLoop::quit);
  give_up.start(longest_wait);
  loop.exec();
  return holds();
}

bool wait_until_exposed(const QWidget& window) {
  return wait_until([&window] { return window.windowHandle()->isExposed(); });
}

/// Makes a window as large as its view needs for just the picture, beyond the edge of a small screen
/// if need be.
/// \return whether the window became so
bool make_room_for_picture(QWidget& window, const GLView& view, QSize picture) {
  // More than once: a scroll bar that is there takes room from the view until it is gone.
  return wait_until([&window, &view, picture] {
    if (view.size() == picture) {
      return true;
    }
    window.resize(window.size() + picture - view.size());
    return false;
  });
}

/// The picture as a PNG file; nothing when there is no picture.
std::optional<QByteArray> png_of(const QImage& picture) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  if (!picture.save(&bytes, "PNG")) {
    return std::nullopt;
  }
  return bytes.data();
}

/// Names a file on standard output.
/// \return whether the output took it
bool name_on_output(const QString& path) {
  if (std::printf("%s\n", qPrintable(path)) < 0 || std::fflush(stdout) != 0) {
    std::fprintf(stderr, "velquon: cannot write to standard output: %s\n", std::strerror(errno));
    return false;
  }
  return true;
}

bool save_picture(GLView& view, const QString& path) {
  const auto png = png_of(view.grabFramebuffer());
  const auto reason =
      png ? write_whole_file(path, *png) : std::optional(QStringLiteral("the view has no picture"));
  if (reason) {
    std::fprintf(stderr, "velquon: cannot write %s: %s\n", qPrintable(as_one_line(path)),
                 qPrintable(*reason));
    return false;
  }
  return name_on_output(path);
}

QString picture_name(const EventType& type, const QString& view) {
  QString name = QString::fromUtf8(type.name);
  return name.toLower().replace(QLatin1Char(' '), QLatin1Char('-')) + QLatin1Char('-') + view +
         QStringLiteral(".png");
}

}  // namespace

int save_pictures(Application& application, const QString& folder) {
  const QDir target(folder);
  if (!target.mkpath(QStringLiteral("."))) {
    std::fprintf(stderr, "velquon: cannot make the folder %s\n", qPrintable(as_one_line(folder)));
    return 1;
  }
  if (!wait_until_exposed(application.chamberWindow()) ||
      !wait_until_exposed(application.projectorWindow())) {
    std::fputs("velquon: the windows did not come up on the screen\n", stderr);
    return 1;
  }
  if (!make_room_for_picture(application.chamberWindow(), *application.chamberWindow().view(),
                             {chamber_width, chamber_height}) ||
      !make_room_for_picture(application.projectorWindow(), *application.projectorWindow().view(),
                             {projection_width, projection_height})) {
    std::fputs("velquon: the screen has no room for the whole pictures\n", stderr);
    return 1;
  }
  const Ui::Menus& menus = application.menus().items();
  const auto items = menus.event_menu->actions();
  for (std::size_t type = 0; type < event_types().size(); ++type) {
    items.at(static_cast<qsizetype>(type))->trigger();
    menus.new_event_item->trigger();
    const EventType& row = event_types()[type];
    if (!save_picture(*application.chamberWindow().view(),
                      target.filePath(picture_name(row, QStringLiteral("chamber")))) ||
        !save_picture(*application.projectorWindow().view(),
                      target.filePath(picture_name(row, QStringLiteral("projector"))))) {
      return 1;
    }
  }
  return 0;
}

}  // namespace velquon
