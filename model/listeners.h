// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace velquon {

/// Those who want to be told when something has changed. They are called in the order in which they
/// were added and must live as long as this object is told from.
class Listeners {
 public:
  void add(std::function<void()> listener) { listeners_.push_back(std::move(listener)); }

  void tell() const {
    for (const auto& listener : listeners_) {
      listener();
    }
  }

 private:
  std::vector<std::function<void()>> listeners_;
};

}  // namespace velquon
