// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace velquon {

/// Keeps a listener among those that are called. Once it is gone, the listener is no longer called, and may
/// refer to what is gone as well. It may itself be there longer than the `Listeners`.
class [[nodiscard]] Subscription {
 public:
  Subscription() = default;

 private:
  friend class Listeners;
  explicit Subscription(std::shared_ptr<const std::function<void()>> listener)
      : listener_(std::move(listener)) {}

  std::shared_ptr<const std::function<void()>> listener_;
};

/// Functions that are called when something has changed, in the order in which they were added.
class Listeners {
 public:
  /// \return what the listener is called for as long as it is kept
  Subscription add(std::function<void()> listener) {
    std::erase_if(listeners_, [](const auto& known) { return known.expired(); });
    auto kept = std::make_shared<const std::function<void()>>(std::move(listener));
    listeners_.push_back(kept);
    return Subscription(std::move(kept));
  }

  /// A listener may add others, which are not called yet, and take away others and itself.
  void tell() const {
    const auto listeners = listeners_;
    for (const auto& known : listeners) {
      if (const auto listener = known.lock()) {
        (*listener)();
      }
    }
  }

 private:
  std::vector<std::weak_ptr<const std::function<void()>>> listeners_;
};

}  // namespace velquon
