// What fuzz targets say their rules with.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace varnel {

// Ends the target, as a finding, when the rule does not hold.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

inline std::string_view BytesOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace varnel
