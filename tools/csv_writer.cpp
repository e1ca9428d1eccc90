#include "tools/csv_writer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>

#include "tools/decimal_text.h"

namespace velquon {

namespace {

constexpr std::size_t buffer_size = 1U << 16U;

// Two numbers of up to 20 digits, three coordinates, a code, and what separates them.
constexpr std::size_t longest_line = 2 * 21 + 3 * (decimal_text_size + 1) + 7;

template <typename Integer>
char* write_integer(char* out, Integer value) {
  return std::to_chars(out, out + 20, value).ptr;
}

}  // namespace

CsvWriter::CsvWriter(std::FILE* file) : file_(file), buffer_("event,point,x,y,z,code\n") {
  buffer_.reserve(buffer_size);
}

std::error_code CsvWriter::write(std::uint64_t event, std::span<const PlotPoint> points) {
  std::array<char, 24> number{};
  char* const number_end = write_integer(number.data(), event);
  *number_end = ',';
  const auto number_size = static_cast<std::size_t>(number_end - number.data()) + 1;

  std::array<char, longest_line> line{};
  for (std::size_t i = 0; i < points.size(); ++i) {
    char* out = std::copy_n(number.begin(), number_size, line.begin());
    out = write_integer(out, i);
    for (std::size_t axis = 0; axis < 3; ++axis) {
      *out++ = ',';
      out = write_decimal(out, points[i].coords[axis]);
    }
    *out++ = ',';
    out = write_integer(out, points[i].code);
    *out++ = '\n';
    const auto size = static_cast<std::size_t>(out - line.data());
    if (buffer_.size() + size > buffer_size) {
      if (const std::error_code error = flush()) {
        return error;
      }
    }
    buffer_.append(line.data(), size);
  }
  return {};
}

std::error_code CsvWriter::finish() {
  if (const std::error_code error = flush()) {
    return error;
  }
  return std::fflush(file_) == 0 ? std::error_code()
                                 : std::error_code(errno, std::generic_category());
}

std::error_code CsvWriter::flush() {
  const std::size_t written = std::fwrite(buffer_.data(), 1, buffer_.size(), file_);
  const bool complete = written == buffer_.size();
  buffer_.clear();
  return complete ? std::error_code() : std::error_code(errno, std::generic_category());
}

}  // namespace velquon
