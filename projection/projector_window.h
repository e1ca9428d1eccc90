#pragma once

#include <memory>

#include "widgets/gl_panel.h"

class QAbstractButton;

namespace Ui {
class ProjectorWindow;
}

namespace velquon {

class ProjectionView;
class ViewScrollArea;

/// The window of the projection view with the buttons of its planes, zooms and tools.
class ProjectorWindow : public GLPanel {
  Q_OBJECT

 public:
  ProjectorWindow();
  ~ProjectorWindow() override;

  [[nodiscard]] ProjectionView* view() const { return view_; }
  [[nodiscard]] ViewScrollArea* area() const;

 private:
  void connectButtons();

  std::unique_ptr<Ui::ProjectorWindow> ui_;
  ProjectionView* view_;
};

}  // namespace velquon
