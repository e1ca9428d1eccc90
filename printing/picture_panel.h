// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <QSize>
#include <cstdint>
#include <functional>
#include <vector>

class QCheckBox;
class QLabel;
class QLayout;
class QPushButton;

namespace velquon {

enum class PictureFormat : std::uint8_t { png, svg, pdf };

inline constexpr int largest_picture_scale = 8;

/// How a picture is to be saved.
struct PictureChoices {
  int scale = 2;  ///< 1 to `largest_picture_scale`
  bool values = true;
  bool legend = false;
  PictureFormat format = PictureFormat::png;
};

/// What can be chosen for the view that is saved.
struct PictureOffer {
  std::vector<PictureFormat> formats;
  bool has_values = false;  ///< whether there are any
  bool has_legend = false;  ///< likewise
  /// Size of the picture that is chosen: pixels of a PNG picture, points of a drawing.
  std::function<QSize(const PictureChoices&)> size;
};

/// Asks how a picture is to be saved.
class PicturePanel : public QDialog {
  Q_OBJECT

 public:
  /// \param preset what is offered
  PicturePanel(PictureOffer offer, const PictureChoices& preset, QWidget* parent = nullptr);

  /// What the user asks for. A choice that was not offered stays as in the preset.
  [[nodiscard]] const PictureChoices& choices() const { return choices_; }

 private:
  QLayout* makeForm();
  QCheckBox* makeCheck(const QString& text, bool PictureChoices::*choice, bool is_offered);
  QWidget* makeButtons();
  void tellSize();

  PictureOffer offer_;
  PictureChoices choices_;
  QLabel* size_label_;
  QPushButton* save_button_ = nullptr;
};

}  // namespace velquon
