// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/hepmc3_writer.h"

#include <HepMC3/WriterAscii.h>

#include <ostream>
#include <streambuf>
#include <utility>

#include "files/hepmc3_event.h"

namespace velquon {

namespace {

/// Hands on what is written to a stream, and keeps the first error.
class HandingOn : public std::streambuf {
 public:
  explicit HandingOn(Hepmc3Writer::Output output) : output_(std::move(output)) {}

  [[nodiscard]] std::error_code error() const { return error_; }

 protected:
  std::streamsize xsputn(const char* text, std::streamsize size) override {
    if (!error_) {
      error_ = output_(std::as_bytes(std::span(text, static_cast<std::size_t>(size))));
    }
    return error_ ? 0 : size;
  }
  int_type overflow(int_type character) override {
    if (traits_type::eq_int_type(character, traits_type::eof())) {
      return traits_type::not_eof(character);
    }
    const char text = traits_type::to_char_type(character);
    return xsputn(&text, 1) == 1 ? character : traits_type::eof();
  }

 private:
  Hepmc3Writer::Output output_;
  std::error_code error_;
};

}  // namespace

struct Hepmc3Writer::State {
  State(Output output, const Hepmc3Run& run)
      : buffer(std::move(output)),
        stream(&buffer),
        info(run_info_of(run)),
        writer(std::make_unique<HepMC3::WriterAscii>(stream, info)) {}

  HandingOn buffer;
  std::ostream stream;
  std::shared_ptr<HepMC3::GenRunInfo> info;
  std::unique_ptr<HepMC3::WriterAscii> writer;
};

Hepmc3Writer::Hepmc3Writer(Output output, const Hepmc3Run& run)
    : state_(std::make_unique<State>(std::move(output), run)) {}

Hepmc3Writer::~Hepmc3Writer() = default;

std::error_code Hepmc3Writer::write(std::uint64_t number, const ParticleRecord& record) {
  if (!record.particles().empty()) {
    state_->writer->write_event(gen_event_of(number, record, state_->info));
  }
  return state_->buffer.error();
}

std::error_code Hepmc3Writer::finish() {
  // The library's writer ends the file as it goes; closing it before that would do so twice.
  state_->writer.reset();
  return state_->buffer.error();
}

}  // namespace velquon
