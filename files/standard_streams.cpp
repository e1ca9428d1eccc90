// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <initializer_list>

namespace velquon {

void keep_places_of_closed_streams() {
  // In this order each gets the number of the stream: the lowest that is free.
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) == -1) {
      ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
  }
}

}  // namespace velquon
