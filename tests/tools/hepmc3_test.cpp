// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <HepMC3/GenEvent.h>
#include <HepMC3/GenParticle.h>
#include <HepMC3/GenRunInfo.h>
#include <HepMC3/GenVertex.h>
#include <HepMC3/ReaderAscii.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "files/hepmc3_writer.h"
#include "tests/support/event_making.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/tool_run.h"

// The tool's HepMC3 files, read back by that library's own reader.

namespace velquon {
namespace {

using test::run_tool;
using test::TemporaryFolder;

struct Case {
  const char* type;
  const char* field;
  const char* energy;
  const char* side;
  ChamberValues values;
};

/// A file of a run, its events in memory, and the records that it was made from.
struct ReadBack {
  std::vector<std::shared_ptr<HepMC3::GenEvent>> events;
  std::vector<ParticleRecord> records;
  std::shared_ptr<HepMC3::GenRunInfo> run;
  std::string text;
};

constexpr int events_of_a_run = 200;

ReadBack written_and_read(const Case& made) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "a run.hepmc3";
  const auto tool =
      run_tool({"--type", made.type, "--field", made.field, "--energy", made.energy, "--side",
                made.side, "--seed", "77", "--events", std::to_string(events_of_a_run), "--format",
                "hepmc3", "--output", path.string()});
  EXPECT_EQ(tool.status, 0);
  EXPECT_EQ(tool.messages, "");
  ReadBack result;
  result.text = test::file_text(path);
  HepMC3::ReaderAscii reader(path.string());
  while (!reader.failed()) {
    auto event = std::make_shared<HepMC3::GenEvent>();
    reader.read_event(*event);
    if (reader.failed()) {
      break;
    }
    result.events.push_back(event);
  }
  result.run = reader.run_info();
  std::srand(77);
  for (int i = 0; i < events_of_a_run; ++i) {
    TrackBuffer buffer;
    make_event(test::event_type(made.type), made.values, buffer, &result.records.emplace_back());
  }
  return result;
}

class Hepmc3File : public ::testing::TestWithParam<Case> {};

TEST_P(Hepmc3File, HoldsEveryEventAndEndsWithItsLastLine) {
  const ReadBack read = written_and_read(GetParam());
  ASSERT_EQ(read.events.size(), static_cast<std::size_t>(events_of_a_run));
  EXPECT_TRUE(read.text.ends_with("HepMC::Asciiv3-END_EVENT_LISTING\n\n") ||
              read.text.ends_with("HepMC::Asciiv3-END_EVENT_LISTING\n"));
  EXPECT_EQ(read.text.find("END_EVENT_LISTING"), read.text.rfind("END_EVENT_LISTING"));
  for (int i = 0; i < events_of_a_run; ++i) {
    EXPECT_EQ(read.events[static_cast<std::size_t>(i)]->event_number(), i + 1);
  }
}

TEST_P(Hepmc3File, TellsTheRun) {
  const ReadBack read = written_and_read(GetParam());
  ASSERT_TRUE(read.run);
  const auto number = [&read](const char* name) {
    const auto attribute = read.run->attribute<HepMC3::DoubleAttribute>(name);
    return attribute ? static_cast<float>(attribute->value()) : -1.0F;
  };
  EXPECT_EQ(number("field_kG"), GetParam().values.B_field);
  EXPECT_EQ(number("side_cm"), GetParam().values.sides_cm);
  EXPECT_EQ(number("energy_MeV"), GetParam().values.kinetic_Mev);
  const auto seed = read.run->attribute<HepMC3::UIntAttribute>("seed");
  ASSERT_TRUE(seed);
  EXPECT_EQ(seed->value(), 77U);
  const auto type = read.run->attribute<HepMC3::StringAttribute>("type");
  ASSERT_TRUE(type);
  EXPECT_EQ(type->value(), GetParam().type);
  ASSERT_EQ(read.run->tools().size(), 1U);
  EXPECT_EQ(read.run->tools()[0].name, "velquon-events");
  EXPECT_EQ("velquon-events " + read.run->tools()[0].version + "\n", run_tool({"--version"}).out);
}

std::vector<double> numbers_of(const HepMC3::FourVector& vector) {
  return {vector.x(), vector.y(), vector.z(), vector.t()};
}

void expect_particle(const HepMC3::GenParticle& particle, const ParticleRecord& record,
                     std::size_t i) {
  const RecordedParticle& row = record.particles()[i];
  bool has_daughters = false;
  for (const RecordedParticle& other : record.particles()) {
    has_daughters = has_daughters || other.parent == static_cast<int>(i);
  }
  EXPECT_EQ(particle.pid(), row.pdg);
  EXPECT_EQ(particle.status(), i == 0 ? 4 : has_daughters ? 2 : 1);
  EXPECT_EQ(numbers_of(particle.momentum()),
            (std::vector<double>{row.momentum[0], row.momentum[1], row.momentum[2], row.energy}));
  if (row.pdg != pdg::both_neutrinos) {
    const double squared = row.energy * row.energy - row.momentum[0] * row.momentum[0] -
                           row.momentum[1] * row.momentum[1] - row.momentum[2] * row.momentum[2];
    EXPECT_NEAR(particle.generated_mass() * particle.generated_mass(), squared, 1e-6);
  }
  ASSERT_EQ(particle.end_vertex() != nullptr, has_daughters);
  if (has_daughters) {
    EXPECT_EQ(numbers_of(particle.end_vertex()->position()),
              (std::vector<double>{(*row.end_cm)[0], (*row.end_cm)[1], (*row.end_cm)[2], 0.0}));
  }
}

TEST_P(Hepmc3File, IsTheRecordFieldByField) {
  const ReadBack read = written_and_read(GetParam());
  ASSERT_EQ(read.events.size(), read.records.size());
  for (std::size_t event = 0; event < read.events.size(); ++event) {
    const auto& particles = read.events[event]->particles();
    const ParticleRecord& record = read.records[event];
    ASSERT_EQ(particles.size(), record.particles().size());
    EXPECT_EQ(read.events[event]->momentum_unit(), HepMC3::Units::MEV);
    EXPECT_EQ(read.events[event]->length_unit(), HepMC3::Units::CM);
    EXPECT_EQ(read.events[event]->weights(), std::vector<double>{1.0});
    const Vector3& entry = record.particles()[0].place_cm;
    EXPECT_EQ(numbers_of(read.events[event]->event_pos()),
              (std::vector<double>{entry[0], entry[1], entry[2], 0.0}));
    // A vertex lists what comes out of it in its order, so particles keep theirs but for photons,
    // whose pairs stand between them in the record.
    std::vector<bool> seen(particles.size());
    for (const auto& particle : particles) {
      std::optional<std::size_t> match;
      for (std::size_t i = 0; i < seen.size() && !match; ++i) {
        const RecordedParticle& row = record.particles()[i];
        if (!seen[i] && row.pdg == particle->pid() && row.energy == particle->momentum().e() &&
            row.momentum[0] == particle->momentum().px()) {
          match = i;
        }
      }
      ASSERT_TRUE(match.has_value()) << "a particle that is not in the record";
      seen[*match] = true;
      expect_particle(*particle, record, *match);
    }
  }
}

TEST_P(Hepmc3File, HasOneBeamNoOrphansAndBalance) {
  const ReadBack read = written_and_read(GetParam());
  int vertices = 0;
  for (const auto& event : read.events) {
    int beams = 0;
    for (const auto& particle : event->particles()) {
      beams += particle->status() == 4 ? 1 : 0;
      EXPECT_EQ(particle->status() == 4, particle->parents().empty());
    }
    EXPECT_EQ(beams, 1);
    ASSERT_EQ(event->beams().size(), 1U);
    EXPECT_EQ(event->beams()[0]->status(), 4);
    for (const auto& vertex : event->vertices()) {
      ++vertices;
      ASSERT_EQ(vertex->particles_in().size(), 1U);
      const auto& parent = vertex->particles_in()[0];
      HepMC3::FourVector out;
      for (const auto& particle : vertex->particles_out()) {
        out += particle->momentum();
      }
      // A parent's momentum is that at its creation; in the field its direction turns about z until
      // it decays, its size and its z do not.
      const double rounding = 1e-9 * parent->momentum().e();
      EXPECT_NEAR(out.pz(), parent->momentum().pz(), rounding);
      EXPECT_NEAR(out.perp(), parent->momentum().perp(), rounding + 1e-9);
      const int number = std::abs(parent->pid());
      const double slack = number == 3122 ? 0.25 * parent->momentum().e() / 1115.6
                           : number == 22 ? 1.5
                                          : rounding;
      EXPECT_NEAR(out.e(), parent->momentum().e(), slack);
    }
  }
  EXPECT_GT(vertices, 10);
}

INSTANTIATE_TEST_SUITE_P(
    Types, Hepmc3File,
    ::testing::Values(Case{"pi-", "5", "0.001", "500", {5.0F, 500.0F, 0.001F}},
                      Case{"pi+", "0", "20", "500", {0.0F, 500.0F, 20.0F}},
                      Case{"pi0", "0.6", "100", "500", {0.6F, 500.0F, 100.0F}},
                      Case{"mu-", "5", "0.001", "500", {5.0F, 500.0F, 0.001F}},
                      Case{"mu+", "-3.3", "0.01", "1000", {-3.3F, 1000.0F, 0.01F}},
                      Case{"lambda", "2", "50", "500", {2.0F, 500.0F, 50.0F}}),
    [](const auto& one) { return "Case" + std::to_string(one.index); });

TEST(Hepmc3Files, WithoutEventsAreReadAsSuch) {
  const auto tool =
      run_tool({"--type", "pi+", "--seed", "1", "--events", "0", "--format", "hepmc3"});
  EXPECT_EQ(tool.status, 0);
  EXPECT_TRUE(tool.out.starts_with("HepMC::Version"));
  const std::size_t end = tool.out.find("END_EVENT_LISTING");
  EXPECT_NE(end, std::string::npos);
  EXPECT_EQ(tool.out.rfind("END_EVENT_LISTING"), end) << "once";
}

TEST(Hepmc3Files, LeaveOutAnEventThatIsNotHandedOver) {
  const auto tool = run_tool({"--type", "mu+", "--field", "0", "--side", "1e12", "--seed", "1",
                              "--events", "50", "--format", "hepmc3"});
  EXPECT_EQ(tool.status, 0);
  std::size_t events = 0;
  for (std::size_t at = 0; (at = tool.out.find("\nE ", at)) != std::string::npos; ++at) {
    ++events;
  }
  EXPECT_GT(events, 0U);
  EXPECT_LT(events, 50U);
}

TEST(Hepmc3Writer, PassesOnTheErrorOfItsOutput) {
  const auto full = [](std::span<const std::byte>) {
    return std::make_error_code(std::errc::no_space_on_device);
  };
  Hepmc3Writer writer(full, {.type = "pi+", .values = {}, .seed = 1, .version = "1"});
  EXPECT_EQ(writer.finish(), std::errc::no_space_on_device);
}

}  // namespace
}  // namespace velquon
