#include "tools/decimal_text.h"

#include <charconv>

namespace velquon {

char* write_decimal(char* out, double value) {
  return std::to_chars(out, out + decimal_text_size, value, std::chars_format::general, 17).ptr;
}

}  // namespace velquon
