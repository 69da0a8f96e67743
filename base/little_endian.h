// Numbers in bytes, low byte first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace varnel {

// The number of `count` bytes (1 to 8) at `at`; bytes beyond the end count as 0.
constexpr std::uint64_t LittleEndian(std::string_view bytes, std::size_t at, std::size_t count) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < count && at < bytes.size() && i < bytes.size() - at; ++i) {
    value |= static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
  }
  return value;
}

// Adds the low `count` bytes of `value` to the end.
inline void AppendLittleEndian(std::string& bytes, std::uint64_t value, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) bytes.push_back(static_cast<char>(value >> (8 * i)));
}

}  // namespace varnel
