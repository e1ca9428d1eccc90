#pragma once

#include <QMainWindow>

namespace velquon {

/// A window that closing only hides, with its view, its OpenGL context and what it shows. When no
/// window is left on the screen the program ends.
class GLPanel : public QMainWindow {
  Q_OBJECT

 public:
  explicit GLPanel(QWidget* parent = nullptr);

  /// Whether any window of the kind is shown, minimized ones included.
  [[nodiscard]] static bool anyOnScreen();

  /// Gives the window a title in which every character stands for itself; Qt takes "[*]" in a
  /// window's title for the place of a mark.
  void setTitle(const QString& title);
  [[nodiscard]] const QString& title() const { return title_; }

  /// Brings the window to the front and makes it the one that keys go to.
  void makeKeyAndOrderFront();

 Q_SIGNALS:
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
  QString title_;
};

}  // namespace velquon
