// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture_files.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>

#include "app/chamber_controller.h"
#include "chamber/chamber_view.h"
#include "events/event_types.h"
#include "model/legend.h"
#include "printing/whole_file.h"
#include "projection/projection_view.h"
#include "render/camera.h"
#include "widgets/gl_panel.h"
#include "widgets/model_text.h"
#include "widgets/user_dialogs.h"
#include "wording/legend_text.h"

namespace velquon {

namespace {

/// Shows that the program is at work.
class WaitCursor {
 public:
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  WaitCursor(WaitCursor&&) = delete;
  WaitCursor& operator=(WaitCursor&&) = delete;
};

QString suffix_of(PictureFormat format) {
  switch (format) {
    case PictureFormat::png:
      return QStringLiteral("png");
    case PictureFormat::svg:
      return QStringLiteral("svg");
    case PictureFormat::pdf:
      break;
  }
  return QStringLiteral("pdf");
}

}  // namespace

PictureFiles::PictureFiles(ChamberController& controller, ChamberView& chamber,
                           ProjectionView& projection, UserDialogs& dialogs)
    : controller_(controller), chamber_(chamber), projection_(projection), dialogs_(dialogs) {}

bool PictureFiles::hasView() const {
  return viewInFront().has_value();
}

std::optional<PictureFiles::View> PictureFiles::viewInFront() const {
  const Printable* const view = controller_.printView();
  if (view == nullptr) {
    return std::nullopt;
  }
  return view == &chamber_ ? View::chamber : View::projection;
}

void PictureFiles::savePicture(const std::string& event_name) {
  const auto view = viewInFront();
  if (!view) {
    return;
  }
  // The picture of the moment at which it was asked for.
  chamber_.stopRotating();
  if (*view == View::chamber) {
    choices_.values = chamber_.show_values();
  }
  PicturePanel panel(offerFor(*view), choices_, QApplication::activeWindow());
  if (panel.exec() != QDialog::Accepted) {
    return;
  }
  choices_ = panel.choices();
  const QString path = askForName(*view, choices_.format);
  if (path.isEmpty()) {
    return;
  }
  const auto bytes = bytesOf(*view, choices_, event_name);
  if (!bytes) {
    tellTooLarge(sizeOfFile(*view, choices_));
    return;
  }
  if (const auto reason = write_whole_file(path, *bytes)) {
    dialogs_.alert(tr("Not saved"), tr("Velquon can't write the file %1: %2.").arg(path, *reason));
  }
}

void PictureFiles::copyPicture() {
  const auto view = viewInFront();
  if (!view) {
    return;
  }
  const bool is_chamber = *view == View::chamber;
  const auto ratio_of = [](const GLView& seen) {
    return seen.devicePixelRatioF() * seen.magnification();
  };
  const double scale = is_chamber ? ratio_of(chamber_) : ratio_of(projection_);
  const bool values = chamber_.show_values() && !chamber_.is_rotating();
  const auto picture = is_chamber ? chamber_.picture(scale, values) : projection_.picture(scale);
  if (picture) {
    QApplication::clipboard()->setImage(*picture);
  } else {
    tellTooLarge((QSizeF(sizeOf(*view)) * scale).toSize());
  }
}

QString PictureFiles::titleOf(View view) const {
  // Qt's own title of a window doubles what stands for a mark.
  const QWidget* const window = view == View::chamber ? chamber_.window() : projection_.window();
  const auto* const panel = qobject_cast<const GLPanel*>(window);
  return panel != nullptr ? panel->title() : window->windowTitle();
}

QSize PictureFiles::sizeOf(View view) const {
  return view == View::chamber ? QSize(chamber_width, chamber_height) : projection_.pictureSize();
}

bool PictureFiles::hasEvent() const {
  return chamber_.has_event();
}

std::vector<LegendLine> PictureFiles::legendOf(View view, PictureFormat format) const {
  const ChamberModel& model = controller_.model();
  // The projection as lines on paper has no colours.
  const bool has_colors = view == View::chamber ||
                          (model.preferences().colored_projector && format == PictureFormat::png);
  return legend_lines(legend_of(*model.shown()->tracks, model.answersShown()),
                      has_colors ? TrackColoring::by_code : TrackColoring::white);
}

PictureOffer PictureFiles::offerFor(View view) const {
  PictureOffer offer{
      .formats = {PictureFormat::png},
      .has_values = hasEvent(),
      .has_legend = !legendOf(view, PictureFormat::png).empty(),
      .size = [this, view](const PictureChoices& choices) { return sizeOfFile(view, choices); }};
  if (view == View::projection) {
    offer.formats.insert(offer.formats.end(), {PictureFormat::svg, PictureFormat::pdf});
  }
  return offer;
}

PictureCaption PictureFiles::captionOf(View view, const PictureChoices& choices) const {
  PictureCaption caption;
  // The chamber has its values in the picture, where the screen has them.
  if (choices.values && hasEvent() && view == View::projection) {
    caption.values = QString::fromStdString(chamber_.values_text());
  }
  if (choices.legend) {
    caption.legend = legendOf(view, choices.format);
  }
  return caption;
}

ProjectionDrawing PictureFiles::drawing(const PictureChoices& choices) const {
  return {.points = controller_.model().shown()->points(),
          .projector = projection_.projector(),
          .picture = projection_.pictureSize(),
          .scale = static_cast<double>(choices.scale),
          .title = titleOf(View::projection),
          .caption = captionOf(View::projection, choices)};
}

QSize PictureFiles::sizeOfFile(View view, const PictureChoices& choices) const {
  return choices.format == PictureFormat::png
             ? captioned_size(sizeOf(view), choices.scale, captionOf(view, choices))
             : size_of_drawing(drawing(choices));
}

PictureTexts PictureFiles::textsOf(View view, const std::string& event_name) const {
  PictureTexts texts{{QStringLiteral("Title"), titleOf(view)},
                     {QStringLiteral("Software"), QStringLiteral("Velquon " VELQUON_VERSION)}};
  if (hasEvent()) {
    texts.emplaceBack(QStringLiteral("Description"),
                      QString::fromStdString(chamber_.values_text()));
    texts.emplaceBack(QStringLiteral("Event"), QString::fromStdString(event_name));
  }
  // An event of a file has no seed; where answers are hidden the seed would give them away.
  const ChamberModel& model = controller_.model();
  if (model.shown()->tracks->type && model.answersShown()) {
    texts.emplaceBack(QStringLiteral("Seed"), QString::number(model.seed()));
  }
  return texts;
}

std::optional<QByteArray> PictureFiles::bytesOf(View view, const PictureChoices& choices,
                                                const std::string& event_name) const {
  const WaitCursor cursor;
  if (choices.format == PictureFormat::svg) {
    return svg_of(drawing(choices));
  }
  if (choices.format == PictureFormat::pdf) {
    return pdf_of(drawing(choices));
  }
  const double scale = choices.scale;
  const auto picture =
      view == View::chamber ? chamber_.picture(scale, choices.values) : projection_.picture(scale);
  const auto whole =
      picture ? with_caption(*picture, scale, captionOf(view, choices)) : std::nullopt;
  return whole ? png_file(*whole, scale, textsOf(view, event_name)) : std::nullopt;
}

QString PictureFiles::askForName(View view, PictureFormat format) {
  const QString suffix = suffix_of(format);
  const QString event =
      QFileInfo(event_name_text(controller_.model().shown()->name)).completeBaseName();
  const QString suggestion =
      view == View::chamber ? tr("%1 Chamber").arg(event) : tr("%1 Projector").arg(event);
  const QString filter = tr("%1 files (*.%2)").arg(suffix.toUpper(), suffix);
  return dialogs_.fileToSave(tr("Save Picture"), suggestion, filter, suffix);
}

void PictureFiles::tellTooLarge(QSize size) {
  dialogs_.alert(
      tr("Not saved"),
      tr("The graphics driver makes no picture of %1 × %2 pixels. Choose a smaller size.")
          .arg(size.width())
          .arg(size.height()));
}

}  // namespace velquon
