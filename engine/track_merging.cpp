#include "engine/track_merging.h"

#include <algorithm>

namespace velquon {

namespace {

/// Writes points one behind the other while there is room.
class LimitedWriter {
 public:
  LimitedWriter(std::span<PlotPoint> out, std::int16_t limit)
      : out_(out), limit_(static_cast<std::size_t>(std::max<std::int16_t>(limit, 0))) {}

  [[nodiscard]] bool has_room() const { return written_ < limit_; }
  [[nodiscard]] std::int16_t written() const { return static_cast<std::int16_t>(written_); }

  void write(const PlotPoint& point) {
    if (has_room()) {
      out_[written_++] = point;
    }
  }
  void write(std::span<const PlotPoint> points) {
    for (const PlotPoint& point : points) {
      write(point);
    }
  }

 private:
  std::span<PlotPoint> out_;
  std::size_t limit_;
  std::size_t written_ = 0;
};

}  // namespace

void combine_paths(std::span<const PlotPoint> first, std::span<const PlotPoint> second,
                   std::span<PlotPoint> out, std::int16_t& count, std::int16_t limit) {
  const bool first_leads = first.size() <= second.size();
  const auto leading = first_leads ? first : second;
  const auto trailing = first_leads ? second : first;
  LimitedWriter writer(out, limit);
  for (std::size_t i = 0; i < leading.size(); ++i) {
    writer.write(leading[i]);
    writer.write(trailing[i]);
  }
  writer.write(trailing.subspan(leading.size()));
  count = writer.written();
}

void combine_paths_timed(std::span<const PlotPoint> first, std::span<const PlotPoint> second,
                         std::span<PlotPoint> out, std::int16_t& count, std::int16_t limit) {
  const bool second_leads =
      first.empty() || (!second.empty() && compare_times(second.front(), first.front()) == 0);
  const auto leading = second_leads ? second : first;
  auto other = second_leads ? first : second;
  LimitedWriter writer(out, limit);
  for (std::size_t i = 0; i < leading.size(); ++i) {
    writer.write(leading[i]);
    while (!other.empty() && i + 1 < leading.size() &&
           compare_times(leading[i + 1], other.front()) == 1) {
      writer.write(other.front());
      other = other.subspan(1);
    }
  }
  writer.write(other);
  count = writer.written();
}

int compare_times(const PlotPoint& a, const PlotPoint& b) {
  return a.time > b.time ? 1 : 0;
}

}  // namespace velquon
