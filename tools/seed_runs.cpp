// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/seed_runs.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <map>
#include <string>

#include "files/atomic_file.h"
#include "files/file_descriptor.h"
#include "files/held_signals.h"
#include "tools/event_output.h"
#include "tools/event_run.h"
#include "tools/partial_folder.h"
#include "tools/progress.h"
#include "tools/shared_count.h"

namespace velquon {

namespace {

constexpr std::uint64_t counting_step = 64;

/// Holds the signals that the run waits for, and gives workers the mask that was before. Those that
/// the process ignores, as under nohup, stay ignored.
class WaitedSignals {
 public:
  WaitedSignals() {
    // A parent that ignores the end of its children never hears how they ended.
    std::signal(SIGCHLD, SIG_DFL);
    waited_ = ending_signals();
    ::sigdelset(&waited_, SIGQUIT);
    ::sigaddset(&waited_, SIGCHLD);
    ::sigprocmask(SIG_BLOCK, &waited_, &before_);
  }
  ~WaitedSignals() { restore(); }
  WaitedSignals(const WaitedSignals&) = delete;
  WaitedSignals& operator=(const WaitedSignals&) = delete;
  WaitedSignals(WaitedSignals&&) = delete;
  WaitedSignals& operator=(WaitedSignals&&) = delete;

  void restore() const { ::sigprocmask(SIG_SETMASK, &before_, nullptr); }

  /// \return the signal that came, 0 when none did for a fifth of a second
  [[nodiscard]] int next() const {
    const timespec patience{0, 200'000'000};
    const int signal = ::sigtimedwait(&waited_, nullptr, &patience);
    return signal < 0 ? 0 : signal;
  }

 private:
  sigset_t waited_{};
  sigset_t before_{};
};

/// What the file of a seed is called while a worker writes it, where it needs a name. No other
/// process has it.
std::string temporary_name(std::uint32_t seed, pid_t worker) {
  return ".velquon-" + std::to_string(seed) + '-' + std::to_string(worker);
}

/// A pipe by which workers tell the process that has started them what went wrong.
class WorkerMessages {
 public:
  WorkerMessages() {
    std::array<int, 2> ends{};
    // Nobody waits: some lines have room in a pipe, and they are read after a worker's end.
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) == 0) {
      to_read_ = FileDescriptor(ends[0]);
      to_write_ = FileDescriptor(ends[1]);
    }
  }

  /// Where a worker writes; null without a pipe.
  [[nodiscard]] std::FILE* stream() const { return ::fdopen(to_write_.number(), "w"); }
  /// The first line that is there, with its end; empty when there is none.
  [[nodiscard]] std::string line() const {
    std::string text;
    for (char c = '\0'; c != '\n' && ::read(to_read_.number(), &c, 1) == 1;) {
      text += c;
    }
    return text;
  }

 private:
  FileDescriptor to_read_;
  FileDescriptor to_write_;
};

/// The run of all seeds, as the process sees it that starts the workers.
class SeedRuns {
 public:
  SeedRuns(const EventOptions& options, std::FILE* messages)
      : options_(options),
        messages_(messages),
        progress_(progress_on(messages, options.progress, options.seeds->size() * options.events)) {
  }

  int run() {
    std::uint64_t next = options_.seeds->first;
    while (true) {
      for (; stopped_by_ == 0 && !begins_no_more_ && next <= options_.seeds->last &&
             workers_.size() < options_.jobs;
           ++next) {
        start(static_cast<std::uint32_t>(next));
      }
      if (workers_.empty()) {
        break;
      }
      wait();
    }
    progress_.show(done_.value());
    progress_.end();
    return outcome();
  }

 private:
  void start(std::uint32_t seed);
  [[nodiscard]] int work(std::uint32_t seed, std::FILE* messages);
  void wait();
  void stop(int signal);
  void collect();
  void tell_end_of(pid_t worker, std::uint32_t seed, int status);
  void tell(const std::string& message);
  [[nodiscard]] int outcome() const;

  const EventOptions& options_;
  std::FILE* messages_;
  Progress progress_;
  WaitedSignals signals_;
  SharedCount done_;
  WorkerMessages worker_messages_;
  std::map<pid_t, std::uint32_t> workers_;  ///< by process, the seed
  std::uint64_t complete_ = 0;
  std::uint64_t failed_ = 0;
  int stopped_by_ = 0;
  /// A file could not be written or a worker not started, and the next seeds are not tried.
  bool begins_no_more_ = false;
};

void SeedRuns::start(std::uint32_t seed) {
  std::error_code none;
  if (options_.resume && std::filesystem::exists(seed_path(options_, seed), none)) {
    done_.add(options_.events);
    progress_.leaveOut(options_.events);
    ++complete_;
    return;
  }
  const pid_t parent = ::getpid();
  const pid_t worker = ::fork();
  if (worker == 0) {
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    signals_.restore();
    std::FILE* const messages = worker_messages_.stream();
    // Its parent may have gone before it asked to go with it.
    const int status =
        ::getppid() == parent ? work(seed, messages != nullptr ? messages : messages_) : 1;
    std::fflush(nullptr);
    ::_exit(status);
  }
  if (worker < 0) {
    tell("velquon-events: cannot start a worker for seed " + std::to_string(seed) + ": " +
         std::strerror(errno) + '\n');
    ++failed_;
    begins_no_more_ = true;
    return;
  }
  workers_.emplace(worker, seed);
}

int SeedRuns::work(std::uint32_t seed, std::FILE* messages) {
  const auto path = seed_path(options_, seed);
  const EventCounter counter = [this](std::uint64_t number) {
    if (number % counting_step == 0) {
      done_.add(counting_step);
    } else if (number == options_.events) {
      done_.add(number % counting_step);
    }
  };
  if (options_.format != EventFormat::cwd) {
    OutputTarget target;
    if (const std::error_code error = target.open(path, temporary_name(seed, ::getpid()))) {
      return report(messages, {path.string(), error});
    }
    const auto failure = run_into_target(options_, seed, target, counter);
    return failure ? report(messages, *failure) : 0;
  }
  FolderInTheMaking folder(path);
  if (const std::error_code error = folder.begin()) {
    return report(messages, {path.string(), error});
  }
  const auto result = run_into_event_files(options_, seed, folder.path(), counter);
  if (result.failure) {
    const auto name = path / std::filesystem::path(result.failure->name).filename();
    return report(messages, {name.string(), result.failure->error});
  }
  const std::error_code error = folder.commit();
  return error ? report(messages, {path.string(), error}) : 0;
}

void SeedRuns::wait() {
  const int signal = signals_.next();
  if (signal != 0 && signal != SIGCHLD && stopped_by_ == 0) {
    stop(signal);
  }
  collect();
  progress_.show(done_.value());
}

void SeedRuns::stop(int signal) {
  stopped_by_ = signal;
  for (const auto& [worker, seed] : workers_) {
    ::kill(worker, SIGTERM);
  }
}

void SeedRuns::collect() {
  // One signal may stand for several workers.
  int status = 0;
  for (pid_t worker = 0; (worker = ::waitpid(-1, &status, WNOHANG)) > 0;) {
    const auto found = workers_.find(worker);
    if (found != workers_.end()) {
      tell_end_of(worker, found->second, status);
      workers_.erase(found);
    }
  }
}

void SeedRuns::tell_end_of(pid_t worker, std::uint32_t seed, int status) {
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
    ++complete_;
    return;
  }
  ++failed_;
  if (!WIFSIGNALED(status)) {
    // A full disk stops all workers at once, for one reason.
    if (!begins_no_more_) {
      tell(worker_messages_.line());
    }
    begins_no_more_ = true;
    return;
  }
  const auto path = seed_path(options_, seed);
  if (options_.format == EventFormat::cwd) {
    std::error_code ignored;
    std::filesystem::remove_all(partial_folder(path), ignored);
  } else {
    remove_temporary(path, temporary_name(seed, worker));
  }
  if (stopped_by_ == 0) {
    const int signal = WTERMSIG(status);
    tell("velquon-events: the worker of seed " + std::to_string(seed) + " was ended by signal " +
         std::to_string(signal) + " (" + ::strsignal(signal) + ")\n");
  }
}

void SeedRuns::tell(const std::string& message) {
  progress_.clear();
  std::fputs(message.c_str(), messages_);
}

int SeedRuns::outcome() const {
  if (stopped_by_ != 0) {
    std::fprintf(messages_,
                 "velquon-events: ended by signal %d (%s), %s of %s seeds are complete\n",
                 stopped_by_, ::strsignal(stopped_by_), std::to_string(complete_).c_str(),
                 std::to_string(options_.seeds->size()).c_str());
    return 128 + stopped_by_;
  }
  return failed_ == 0 ? 0 : 1;
}

}  // namespace

std::filesystem::path seed_path(const EventOptions& options, std::uint32_t seed) {
  return options.output.value_or(".") /
         ("seed-" + std::to_string(seed) + std::string(traits_of(options.format).extension));
}

int run_seeds(const EventOptions& options, std::FILE* messages) {
  std::error_code error;
  if (!std::filesystem::is_directory(options.output.value_or("."), error)) {
    const auto why = error ? error : std::make_error_code(std::errc::not_a_directory);
    return report(messages, {seed_path(options, options.seeds->first).string(), why});
  }
  return SeedRuns(options, messages).run();
}

}  // namespace velquon
