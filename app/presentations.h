// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "model/listeners.h"
#include "widgets/presentation_panel.h"

namespace velquon {

class GLPanel;
class Presentation;
class ViewScrollArea;

/// A window whose view can be presented.
struct Presentable {
  GLPanel* window = nullptr;
  ViewScrollArea* area = nullptr;
  /// What is to be told beside the view now.
  std::function<PresentedTexts()> texts{};
  /// Whether a key that is being handled is meant for something else than the presentation; null for
  /// never.
  std::function<bool()> takes_key{};
};

/// Presents the view that is in front over the whole screen. When another of the windows comes to the
/// front meanwhile, that one is presented.
class Presentations : public QObject {
  Q_OBJECT

 public:
  Presentations();
  ~Presentations() override;
  Presentations(const Presentations&) = delete;
  Presentations& operator=(const Presentations&) = delete;
  Presentations(Presentations&&) = delete;
  Presentations& operator=(Presentations&&) = delete;

  /// Adds a window. The first is presented when none is on the screen.
  void add(const Presentable& presentable);

  [[nodiscard]] bool isOn() const { return presentation_ != nullptr; }
  /// Starts the presentation or ends it.
  void toggle();
  void end();
  /// Shows the present titles, legend and readings.
  void refresh() const;
  /// Does so whenever something has changed.
  void refreshOn(Listeners& changes);

 Q_SIGNALS:
  /// The presentation has started or ended.
  void changed();

 private:
  [[nodiscard]] std::size_t toPresent() const;
  void cameToFront(std::size_t index);
  void present(std::size_t index);
  void endFromLoop();

  std::vector<Presentable> presentables_;
  std::size_t in_front_ = 0;  ///< which was active last, or is presented
  std::unique_ptr<Presentation> presentation_;
  PresentationPanel* panel_ = nullptr;  ///< of the presentation
  std::vector<Subscription> changes_;
};

}  // namespace velquon
