// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/mman.h>

#include <atomic>
#include <cstdint>
#include <new>

namespace velquon {

/// A count that this process and those that it forks share; without memory to share it stays 0.
class SharedCount {
 public:
  SharedCount() {
    void* const memory =
        ::mmap(nullptr, sizeof(Count), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    count_ = memory == MAP_FAILED ? nullptr : new (memory) Count(0);
  }
  ~SharedCount() {
    if (count_ != nullptr) {
      ::munmap(count_, sizeof(Count));
    }
  }
  SharedCount(const SharedCount&) = delete;
  SharedCount& operator=(const SharedCount&) = delete;
  SharedCount(SharedCount&&) = delete;
  SharedCount& operator=(SharedCount&&) = delete;

  void add(std::uint64_t number) {
    if (count_ != nullptr) {
      count_->fetch_add(number, std::memory_order_relaxed);
    }
  }
  [[nodiscard]] std::uint64_t value() const {
    return count_ == nullptr ? 0 : count_->load(std::memory_order_relaxed);
  }

 private:
  using Count = std::atomic<std::uint64_t>;
  static_assert(Count::is_always_lock_free, "processes share it");
  Count* count_ = nullptr;
};

}  // namespace velquon
