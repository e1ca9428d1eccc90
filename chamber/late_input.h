// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <cstdint>

class QInputEvent;

namespace velquon {

/// Knows whether the key or mouse button whose press or release is being handled was pressed before
/// some moment: what the user did while the program did not answer is handled only afterwards.
class LateInput : public QObject {
  Q_OBJECT

 public:
  /// \param time milliseconds of the X server; what was pressed then or before is late
  void setLatest(std::uint32_t time);

  /// Whether what is being handled comes from a late press.
  [[nodiscard]] bool is_handled() const { return is_handled_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool isLate(const QInputEvent& press) const;

  std::uint32_t latest_ = 0;
  bool is_handled_ = false;
};

}  // namespace velquon
