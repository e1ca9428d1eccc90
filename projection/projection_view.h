#pragma once

#include <QCursor>
#include <QLineF>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/event_record.h"
#include "widgets/gl_view.h"
#include "printing/page.h"
#include "model/projection_mapping.h"

class QAbstractButton;
class QLabel;
class QPainter;

namespace velquon {

/// The buttons with which a sender is compared, and the tape's reading.
struct ProjectionOutlets {
  QAbstractButton* xy_button = nullptr;
  QAbstractButton* xz_button = nullptr;
  QAbstractButton* yz_button = nullptr;
  QAbstractButton* zoom_1 = nullptr;
  QAbstractButton* zoom_2 = nullptr;
  QAbstractButton* zoom_3 = nullptr;
  QAbstractButton* tape_tool = nullptr;
  QAbstractButton* grab_tool = nullptr;
  QLabel* tape_text = nullptr;
};

/// Size of the projection view for which its defaults are made, view units.
inline constexpr int projection_width = 470;
inline constexpr int projection_height = 420;

/// The event projected onto one of the coordinate planes, with a tape measure and a grab tool.
class ProjectionView : public GLView, public Printable {
  Q_OBJECT

 public:
  explicit ProjectionView(QWidget* parent = nullptr);

  void setOutlets(const ProjectionOutlets& outlets);

  /// Shows the points of an event that stays the caller's and must outlive its showing. Does not
  /// draw.
  void setData(std::span<const PlotPoint> points);
  /// A tape on the screen is read anew.
  /// \param scaler cm of the chamber per view unit at zoom 1
  void setScaler(double scaler);
  [[nodiscard]] double scaler() const { return scaler_; }

  /// Chooses the plane by its button; hides the tape and puts the picture back to its place.
  void setProjection(QAbstractButton* selected_cell);
  /// Chooses the zoom by its button; hides the tape and keeps the offsets.
  void setZoom(QAbstractButton* sender);
  /// Chooses the tool by its button; hides the tape.
  void setTool(QAbstractButton* sender);

  void resetOffsets();
  /// Puts the picture back to its place and hides the tape, for a new event.
  void restore();

  /// Distance between the tape's ends, cm of the chamber.
  [[nodiscard]] double tapeLength() const;

  void setPrinting(QPainter* page) override { page_ = page; }
  void printRect() override;

  /// The way to view units on the screen or, while printing, on the page.
  [[nodiscard]] ProjectionMapping mapping() const;
  [[nodiscard]] ProjectionPlane projection_plane() const { return projection_plane_; }
  [[nodiscard]] bool tape_visible() const { return tape_visible_; }

 protected:
  void drawRect() override;
  void reshape() override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  enum class Tool : std::uint8_t { tape, grab };

  /// Height of the picture, which hangs from its top; a page takes it as the defaults have it.
  [[nodiscard]] double pictureHeight() const;
  void makeDisplayPoints();
  void drawTracks();
  void printFrame(const QRectF& frame);
  /// The tape on the page; a null line while it is hidden.
  [[nodiscard]] QLineF printedTape() const;
  /// The points' squares on the page, without those that no page can hold.
  [[nodiscard]] std::vector<QRectF> printedSquares() const;
  void resetCursorRects();
  void makeCursors();
  void hideTape();
  void showReading(double centimetres);
  void stretchTape(QPointF place);
  void grabTo(QPointF place);

  ProjectionOutlets outlets_;
  QCursor cross_hair_cursor_;
  QCursor grabber_cursor_;
  double cursor_ratio_ = 0.0;  ///< device pixels to a pixel that the cursors are made for
  double OffV_ = 0.0;
  double OffH_ = 0.0;
  std::span<const PlotPoint> event_data_;
  std::vector<QPointF> display_points_;
  float zoom_factor_ = 1.0F;
  Tool tool_choice_ = Tool::tape;
  ProjectionPlane projection_plane_ = ProjectionPlane::xy;
  QPointF tape_start_point_;
  QPointF tape_end_point_;
  QPointF last_grab_;
  bool tape_visible_ = false;
  QPainter* page_ = nullptr;  ///< the page while printing
  double scaler_ = 0.0;
  double shown_height_ = projection_height;  ///< that the tape and the grab belong to
};

}  // namespace velquon
