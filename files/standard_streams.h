// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon {

/// Takes the places of standard streams that are closed, which the next files and connections to be
/// opened would get: a message would be written into them. Reading from such a stream, and writing
/// to it, still fails.
void keep_places_of_closed_streams();

}  // namespace velquon
