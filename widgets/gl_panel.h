// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMainWindow>
#include <chrono>
#include <functional>
#include <utility>

class QDropEvent;

namespace velquon {

/// A window that closing only hides, with its view, its OpenGL context and what it shows. When no
/// window is left on the screen the program ends.
class GLPanel : public QMainWindow {
  Q_OBJECT

 public:
  explicit GLPanel(QWidget* parent = nullptr);

  /// Whether any window of the kind is shown, minimized ones included.
  [[nodiscard]] static bool anyOnScreen();
  /// The window of the kind that is active or, while no window of the program is, was active
  /// last; null when none is shown.
  [[nodiscard]] static GLPanel* inFront();

  /// Gives the window its content, which is scrolled where the window is too small for it.
  void setContent(QWidget* content);

  /// Gives the window a title in which every character stands for itself; Qt takes "[*]" in a
  /// window's title for the place of a mark.
  void setTitle(const QString& title);
  [[nodiscard]] const QString& title() const { return title_; }

  /// Brings the window to the front and activates it.
  void makeKeyAndOrderFront();

  /// \param may_take asked whether files may be dropped on the window now; without it they always may
  void takeFilesWhile(std::function<bool()> may_take) { may_take_files_ = std::move(may_take); }
  /// Whether files may be dropped on the window now; not while a modal dialog is shown.
  [[nodiscard]] bool takesFiles() const;

  /// Wide enough for the menu bar, which Qt leaves out.
  [[nodiscard]] QSize sizeHint() const override;

 Q_SIGNALS:
  /// The window, which is shown, is now the active one.
  void becameKey();
  void resignedKey();
  /// A file was dropped on the window.
  void fileDropped(const QString& path);

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  [[nodiscard]] QString fileToTake(const QDropEvent& event) const;

  QString title_;
  std::function<bool()> may_take_files_;
  std::chrono::steady_clock::time_point came_to_front_;
};

}  // namespace velquon
