// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/presentations.h"

#include <algorithm>

#include "widgets/gl_panel.h"
#include "widgets/presentation.h"

namespace velquon {

Presentations::Presentations() = default;
Presentations::~Presentations() = default;

void Presentations::add(const Presentable& presentable) {
  const std::size_t index = presentables_.size();
  presentables_.push_back(presentable);
  connect(presentable.window, &GLPanel::becameKey, this, [this, index] { cameToFront(index); });
}

void Presentations::toggle() {
  if (isOn()) {
    end();
    return;
  }
  present(toPresent());
  Q_EMIT changed();
}

void Presentations::end() {
  presentation_.reset();
  panel_ = nullptr;
  Q_EMIT changed();
}

std::size_t Presentations::toPresent() const {
  const auto is_on_screen = [](const Presentable& presentable) {
    return presentable.window->isVisible();
  };
  if (is_on_screen(presentables_.at(in_front_))) {
    return in_front_;
  }
  // The one that was active last is closed.
  const auto found = std::ranges::find_if(presentables_, is_on_screen);
  return found == presentables_.end() ? 0 : static_cast<std::size_t>(found - presentables_.begin());
}

void Presentations::cameToFront(std::size_t index) {
  in_front_ = index;
  if (isOn() && &presentation_->window() != presentables_[index].window) {
    present(index);
  }
}

void Presentations::present(std::size_t index) {
  in_front_ = index;
  const Presentable& presentable = presentables_[index];
  if (!presentable.window->isActiveWindow()) {
    presentable.window->makeKeyAndOrderFront();
  }
  auto panel = std::make_unique<PresentationPanel>();
  panel_ = panel.get();
  // The one before ends behind the one that is there already.
  presentation_ =
      std::make_unique<Presentation>(*presentable.window, *presentable.area, std::move(panel));
  connect(presentation_.get(), &Presentation::endAsked, this, &Presentations::endFromLoop);
  refresh();
}

void Presentations::endFromLoop() {
  const auto& takes_key = presentables_[in_front_].takes_key;
  if (!takes_key || !takes_key()) {
    QMetaObject::invokeMethod(this, &Presentations::end, Qt::QueuedConnection);
  }
}

void Presentations::refresh() const {
  if (isOn()) {
    panel_->tell(presentables_[in_front_].texts());
  }
}

void Presentations::refreshOn(Listeners& changes) {
  changes_.push_back(changes.add([this] { refresh(); }));
}

}  // namespace velquon
