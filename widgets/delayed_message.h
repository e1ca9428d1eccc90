// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

class QObject;

namespace velquon {

/// Calls something once, from the event loop, after a delay.
/// \param receiver the call is dropped when this object is gone by then
/// \param seconds  the delay; what is not above 0 means as soon as the loop runs
void perform_after(double seconds, QObject* receiver, const std::function<void()>& message);

}  // namespace velquon
