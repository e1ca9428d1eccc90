// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

#include "events/particle_record.h"
#include "files/byte_output.h"

namespace velquon {

/// The first line of a table of particles, without its end.
inline constexpr std::string_view particle_table_header =
    "event,particle,pdg,parent,fate,code,first_point,points,x,y,z,px,py,pz,energy,end_x,end_y,"
    "end_z";

/// Writes what happened as a table, a line a particle, below a header with the names of the
/// columns. cm and MeV; the origin is in the middle of the chamber.
class ParticleTable {
 public:
  explicit ParticleTable(ByteOutput output);

  /// Adds the lines of one event.
  /// \param number of the event, from 1; particles are numbered from 0
  /// \return what went wrong while a full buffer was written
  std::error_code write(std::uint64_t number, const ParticleRecord& record);

  /// Writes what is still in the buffer.
  std::error_code finish();

 private:
  ByteOutput output_;
  std::string text_;
};

}  // namespace velquon
