// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/standard_streams.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

namespace velquon {
namespace {

class ClosedStandardStreams : public ::testing::TestWithParam<std::vector<int>> {};

TEST_P(ClosedStandardStreams, AreNotTheNextFilesAndStillFail) {
  const pid_t child = ::fork();
  if (child == 0) {
    for (const int stream : GetParam()) {
      ::close(stream);
    }
    keep_places_of_closed_streams();
    int failures = ::open("/dev/zero", O_RDWR) > STDERR_FILENO ? 0 : 1;
    for (const int stream : GetParam()) {
      char byte = 'x';
      const ssize_t done =
          stream == STDIN_FILENO ? ::read(stream, &byte, 1) : ::write(stream, &byte, 1);
      failures += done < 0 ? 0 : 1;
    }
    ::_exit(failures);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

INSTANTIATE_TEST_SUITE_P(Streams, ClosedStandardStreams,
                         ::testing::Values(std::vector{0}, std::vector{1}, std::vector{2},
                                           std::vector{0, 2}, std::vector{1, 2},
                                           std::vector{0, 1, 2}));

TEST(OpenStandardStreams, StayAsTheyAre) {
  int ends[2] = {};
  ASSERT_EQ(::pipe(ends), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(ends[1], STDOUT_FILENO);
    keep_places_of_closed_streams();
    ::_exit(::write(STDOUT_FILENO, "x", 1) == 1 ? 0 : 1);
  }
  ::close(ends[1]);
  char byte = '\0';
  EXPECT_EQ(::read(ends[0], &byte, 1), 1);
  EXPECT_EQ(byte, 'x');
  ::close(ends[0]);
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

}  // namespace
}  // namespace velquon
