#include "foundation/text/My_string_to_i.h"

#include <charconv>
#include <limits>
#include <system_error>

#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

template <typename Integer>
bool Extract(std::string_view& text, Integer& number) {
  std::string_view rest = text;
  Skip_space(rest);
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);
  const char* const end = rest.data() + rest.size();
  std::uint32_t size = 0;
  const auto [behind, error] = std::from_chars(rest.data(), end, size);
  const bool below_zero = negative && std::numeric_limits<Integer>::is_signed;
  const auto largest = static_cast<std::uint32_t>(std::numeric_limits<Integer>::max());
  if (error != std::errc() || size > largest + (below_zero ? 1U : 0U)) return false;
  number = static_cast<Integer>(negative ? 0U - size : size);
  text = {behind, end};
  return true;
}

}  // namespace

bool Extract_integer(std::string_view& text, std::int32_t& number) { return Extract(text, number); }
bool Extract_integer(std::string_view& text, std::uint32_t& number) {
  return Extract(text, number);
}

}  // namespace gns
