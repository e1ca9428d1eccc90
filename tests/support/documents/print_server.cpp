// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/print_server.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace velquon::test {

SilentPrintServer::SilentPrintServer(const QString& path)
    : address_("CUPS_SERVER", QFile::encodeName(path)),
      listener_(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {
  constexpr int waiting_calls = 8;
  const QByteArray name = QFile::encodeName(path);
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  if (static_cast<std::size_t>(name.size()) >= sizeof(place.sun_path)) {
    throw std::runtime_error("the path is too long for a socket");
  }
  std::memcpy(place.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
  if (bind(listener_, reinterpret_cast<const sockaddr*>(&place), sizeof(place)) != 0 ||
      listen(listener_, waiting_calls) != 0) {
    throw std::runtime_error("no print server at " + path.toStdString());
  }
}

SilentPrintServer::~SilentPrintServer() {
  for (const int call : calls_) {
    close(call);
  }
  close(listener_);
}

std::size_t SilentPrintServer::callers() {
  takeCalls();
  return processes_.size();
}

bool SilentPrintServer::wasCalledByThisProgram() {
  takeCalls();
  return std::ranges::find(processes_, getpid()) != processes_.end();
}

void SilentPrintServer::takeCalls() {
  for (int call = accept(listener_, nullptr, nullptr); call >= 0;
       call = accept(listener_, nullptr, nullptr)) {
    ucred caller{};
    socklen_t size = sizeof(caller);
    getsockopt(call, SOL_SOCKET, SO_PEERCRED, &caller, &size);
    calls_.push_back(call);
    processes_.push_back(caller.pid);
  }
}

}  // namespace velquon::test
