// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/event_types.h"

#include <cmath>

#include "engine/model_text.h"
#include "events/lambda_decay.h"
#include "events/lepton_decays.h"
#include "events/neutral_pion_decay.h"
#include "events/recorder.h"

namespace velquon {

namespace {

constexpr std::array<EventType, 6> types{{
    {"pi-", MODEL_TEXT("velquon::Model", "Negative Pion"), true, pion_chain},
    {"pi+", MODEL_TEXT("velquon::Model", "Positive Pion"), false, pion_chain},
    {"pi0", MODEL_TEXT("velquon::Model", "Neutral Pion"), false, pizero_chain},
    {"mu-", MODEL_TEXT("velquon::Model", "Negative Muon"), true, muon_chain},
    {"mu+", MODEL_TEXT("velquon::Model", "Positive Muon"), false, muon_chain},
    {"lambda", MODEL_TEXT("velquon::Model", "Lambda"), false, lambda_chain},
}};

}  // namespace

std::span<const EventType> event_types() {
  return types;
}

HandOver run_chain(DecayChain chain, const ChamberValues& values, TrackBuffer& event,
                   ParticleRecord* record) {
  event.count = 0;
  if (record != nullptr) {
    record->clear();
  }
  if (!(values.kinetic_Mev > 0.0F) || !std::isfinite(values.kinetic_Mev)) {
    return HandOver::yes;
  }
  const HandOver result = chain(values, event, record);
  if (record != nullptr && result == HandOver::no) {
    record->clear();
  }
  Recorder(record, static_cast<double>(values.sides_cm)).finish(event.points());
  return result;
}

HandOver make_event(const EventType& type, const ChamberValues& values, TrackBuffer& event,
                    ParticleRecord* record) {
  if (record != nullptr) {
    record->negative = type.flips_field;
  }
  ChamberValues chain_values = values;
  if (type.flips_field) {
    chain_values.B_field = -chain_values.B_field;
  }
  return run_chain(type.chain, chain_values, event, record);
}

}  // namespace velquon
