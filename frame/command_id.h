// Menu commands are known by their names; the platform wants small numbers.
#pragma once

#include <cstdint>
#include <string_view>

namespace varnel {

// The number of the command `name`, 0x1000 to 0xCFFF: FNV-1a (32 bits, offset basis 2166136261,
// prime 16777619) over the name's UTF-16 units, its halves joined by exclusive or. It depends on
// nothing but the name; that no two commands of the program share a number is tested.
constexpr std::uint16_t CommandId(std::wstring_view name) {
  std::uint32_t hash = 2166136261u;
  for (const wchar_t unit : name) {
    hash = (hash ^ static_cast<std::uint32_t>(unit)) * 16777619u;
  }
  return static_cast<std::uint16_t>(0x1000 + ((hash >> 16 ^ hash) & 0xFFFF) % 0xC000);
}

}  // namespace varnel
