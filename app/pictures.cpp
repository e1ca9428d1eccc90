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
#include <optional>

#include "app/application.h"
#include "app/chamber_window.h"
#include "app/command_line.h"
#include "app/menus.h"
#include "app/projector_window.h"
#include "app/whole_file.h"
#include "chamber/chamber_view.h"
#include "events/event_types.h"
#include "projection/projection_view.h"
#include "ui_menus.h"

namespace velquon {

namespace {

constexpr int longest_wait = 10'000;  // milliseconds

bool wait_until_exposed(const QWidget& window) {
  QEventLoop loop;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
    if (window.windowHandle()->isExposed()) {
      loop.quit();
    }
  });
  poll.start(5);
  QTimer give_up;
  QObject::connect(&give_up, &QTimer::timeout, &loop, &QEventLoop::quit);
  give_up.start(longest_wait);
  loop.exec();
  return window.windowHandle()->isExposed();
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
  QString name = QString::fromUtf8(type.name.data(), static_cast<qsizetype>(type.name.size()));
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
