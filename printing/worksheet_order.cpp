// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/worksheet_order.h"

#include <algorithm>
#include <array>

#include "engine/model_text.h"
#include "files/number_in.h"
#include "model/chamber_model.h"

namespace velquon {

namespace {

/// Puts a chamber value into an order unless no chamber can have it.
bool take_value(WorksheetOrder& order, float ChamberValues::*member, std::string_view text) {
  const auto number = number_in<double>(text);
  if (!number) {
    return false;
  }
  ChamberValues values = order.values;
  values.*member = static_cast<float>(*number);
  if (!is_chamber_possible(values)) {
    return false;
  }
  order.values = as_controls_hold(values);
  return true;
}

bool take_type(WorksheetOrder& order, std::string_view text) {
  const auto found = std::ranges::find(event_types(), text, &EventType::key);
  if (found == event_types().end()) {
    return false;
  }
  order.type = &*found;
  return true;
}

bool take_field(WorksheetOrder& order, std::string_view text) {
  return take_value(order, &ChamberValues::B_field, text);
}

bool take_side(WorksheetOrder& order, std::string_view text) {
  return take_value(order, &ChamberValues::sides_cm, text);
}

bool take_energy(WorksheetOrder& order, std::string_view text) {
  const auto number = number_in<double>(text);
  return number && static_cast<float>(*number) > 0.0F &&
         take_value(order, &ChamberValues::kinetic_Mev, text);
}

bool take_count(WorksheetOrder& order, std::string_view text) {
  const auto number = number_in<int>(text);
  if (!number || *number < 1 || *number > most_worksheets) {
    return false;
  }
  order.events = *number;
  return true;
}

bool take_paper(WorksheetOrder& order, std::string_view text) {
  if (text != "A4" && text != "Letter") {
    return false;
  }
  order.paper = text == "A4" ? QPageSize::A4 : QPageSize::Letter;
  return true;
}

constexpr std::array<OrderEntry, 6> entries{{
    {"type", "TYPE", "kind of event: pi-, pi+, pi0, mu-, mu+ or lambda",
     "one of pi-, pi+, pi0, mu-, mu+, lambda", take_type},
    {"field", "KG", "magnetic field, kG (default 0.6)",
     MODEL_TEXT("velquon::Model", "a finite field in kG"), take_field},
    {"side", "CM", "side of the chamber, cm (default 500)",
     MODEL_TEXT("velquon::Model", "a finite side in cm above 0"), take_side},
    {"energy", "MEV", "kinetic energy of the incoming particle, MeV (default 0.4)",
     MODEL_TEXT("velquon::Model", "a finite energy in MeV above 0"), take_energy},
    {"events", "COUNT", "number of worksheets (default 1)", "a whole number from 1 to 1000",
     take_count},
    {"paper", "NAME", "paper of the worksheets: A4 or Letter (default A4)", "one of A4, Letter",
     take_paper},
}};

}  // namespace

std::span<const OrderEntry> order_entries() {
  return entries;
}

const OrderEntry& order_entry(std::string_view key) {
  return *std::ranges::find(entries, key, &OrderEntry::key);
}

}  // namespace velquon
