// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <memory>
#include <optional>

class QWidget;

namespace velquon {

/// Sees the presses of keys and mouse buttons that reach the program's windows, and the requests to
/// close them, and takes none of them: they stay in Qt's queue and are handled when the event loop runs
/// again. For work that does not return to the event loop and that the user can end.
class InputWatch {
 public:
  /// Watches from now on. Without the X server's leave nothing is ever seen.
  /// \param widget any widget of the program
  explicit InputWatch(const QWidget& widget);
  ~InputWatch();
  InputWatch(const InputWatch&) = delete;
  InputWatch& operator=(const InputWatch&) = delete;
  InputWatch(InputWatch&&) = delete;
  InputWatch& operator=(InputWatch&&) = delete;

  /// Whether by now Escape, the keys of Quit or a mouse button were pressed, or a window was asked
  /// to close. Turning the wheel is no press.
  [[nodiscard]] bool endIsWanted();

  /// When the last press that was seen was made, in the milliseconds of the X server.
  [[nodiscard]] std::optional<std::uint32_t> lastPress();

 private:
  class Record;
  std::unique_ptr<Record> record_;
};

}  // namespace velquon
