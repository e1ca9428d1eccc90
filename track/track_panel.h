#pragma once

#include <QWidget>
#include <memory>

class QAbstractButton;
class QAction;
class QLabel;

namespace Ui {
class track_panel;
}

namespace velquon {

class NewTrackView;
class ValueSlider;

/// What the track window holds: the view, the field slider with its value, the tape's reading and
/// two buttons.
class TrackPanel : public QWidget {
  Q_OBJECT

 public:
  explicit TrackPanel(QWidget* parent = nullptr);
  ~TrackPanel() override;

  /// Has the view do what the two menu items say, and makes each button stand for its item.
  void setItems(QAction* inject_item, QAction* clear_item);

  [[nodiscard]] NewTrackView* track_view() const;
  [[nodiscard]] ValueSlider* vSlider() const;
  [[nodiscard]] QLabel* field_text() const;
  [[nodiscard]] QLabel* tape_box() const;
  [[nodiscard]] QAbstractButton* inject_button() const;
  [[nodiscard]] QAbstractButton* clear_button() const;

 private:
  std::unique_ptr<Ui::track_panel> ui_;
};

}  // namespace velquon
