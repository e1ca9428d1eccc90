#include "tools/csv_writer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <string_view>

#include "tools/decimal_text.h"
#include "tools/small_numbers.h"

namespace velquon {

namespace {

constexpr std::string_view header = "event,point,x,y,z,code\n";

// A buffer is written out when the next line might not fit. Two numbers of up to 20 digits, three
// coordinates, a code, and what separates them; a little more, as texts are copied in whole words.
constexpr std::size_t buffer_size = 1U << 16U;
constexpr std::size_t longest_line = 2 * 21 + 3 * (decimal_text_size + 1) + 7 + 8;

template <typename Integer>
char* write_integer(char* out, Integer value) {
  return std::to_chars(out, out + 20, value).ptr;
}

char* write_point_number(char* out, std::size_t number) {
  out = number < small_numbers_end ? write_small_number(out, small_numbers[number])
                                   : write_integer(out, number);
  *out++ = ',';
  return out;
}

char* write_code(char* out, std::int16_t code) {
  if (code >= 0 && code <= 9) {
    *out++ = static_cast<char>('0' + code);
  } else {
    out = write_integer(out, code);
  }
  *out++ = '\n';
  return out;
}

}  // namespace

CsvWriter::CsvWriter(std::FILE* file) : file_(file), buffer_(buffer_size), used_(header.size()) {
  std::ranges::copy(header, buffer_.begin());
}

std::error_code CsvWriter::write(std::uint64_t event, std::span<const PlotPoint> points) {
  std::array<char, 24> number{};
  char* const number_end = write_integer(number.data(), event);
  *number_end = ',';
  const auto number_size = number_end + 1 - number.data();

  char* out = buffer_.data() + used_;
  const char* const last_start = buffer_.data() + buffer_size - longest_line;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (out > last_start) {
      used_ = static_cast<std::size_t>(out - buffer_.data());
      if (const std::error_code error = flush()) {
        return error;
      }
      out = buffer_.data();
    }
    std::memcpy(out, number.data(), number.size());
    out = write_point_number(out + number_size, i);
    const auto& [x, y, z, w] = points[i].coords;
    out = write_code(write_coordinates(out, x, y, z), points[i].code);
  }
  used_ = static_cast<std::size_t>(out - buffer_.data());
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
  const std::size_t written = std::fwrite(buffer_.data(), 1, used_, file_);
  const bool complete = written == used_;
  used_ = 0;
  return complete ? std::error_code() : std::error_code(errno, std::generic_category());
}

}  // namespace velquon
