// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/modal.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <memory>

namespace velquon::test {

namespace {

class ModalUser : public std::enable_shared_from_this<ModalUser> {
 public:
  explicit ModalUser(std::vector<Turn> turns) : turns_(std::move(turns)) { clock_.start(); }

  /// Looks for the next dialog now and then; also while a turn has not come back, because it may
  /// have opened another dialog.
  void look() {
    constexpr int pause = 10;
    if (over_) {
      return;
    }
    QTimer::singleShot(pause, [self = shared_from_this()] { self->look(); });
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) {
      return;
    }
    if (clock_.elapsed() > patience) {
      ++closed_;
      dialog->close();
    } else if (isNext(*dialog)) {
      clock_.start();
      turns_[taken_++].act(*dialog);
    }
  }

  void end() { over_ = true; }
  [[nodiscard]] bool allWasWell() const { return taken_ == turns_.size() && closed_ == 0; }

 private:
  static constexpr qint64 patience = 20'000;  // milliseconds; longer than any wait within a turn

  [[nodiscard]] bool isNext(const QWidget& dialog) const {
    return taken_ < turns_.size() && dialog.inherits(turns_[taken_].dialog_class) &&
           dialog.isVisible() && dialog.isActiveWindow();
  }

  std::vector<Turn> turns_;
  std::size_t taken_ = 0;
  int closed_ = 0;
  bool over_ = false;
  QElapsedTimer clock_;
};

}  // namespace

bool with_dialogs(const std::function<void()>& run, std::vector<Turn> turns) {
  const auto user = std::make_shared<ModalUser>(std::move(turns));
  user->look();
  run();
  user->end();
  return user->allWasWell();
}

}  // namespace velquon::test
