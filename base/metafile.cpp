#include "base/metafile.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace varnel {
namespace {

constexpr double kDotsPerInch = 96;
constexpr int kLongestSide = 1 << 20;

// The bytes from `at` on as a little-endian number; zero beyond the end.
std::uint32_t Number(std::string_view bytes, std::size_t at, int count) {
  std::uint32_t value = 0;
  for (int i = 0; i < count; ++i) {
    const std::size_t place = at + static_cast<std::size_t>(i);
    if (place < bytes.size()) {
      value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[place])) << (8 * i);
    }
  }
  return value;
}

int Pixels(double inches) {
  return static_cast<int>(std::clamp(inches * kDotsPerInch + 0.5, 1.0, 1.0 * kLongestSide));
}

// Header: [MS-EMF] 2.3.4.2. Records: type and length in bytes, four bytes each.
MetafileFrame EnhancedFrame(std::string_view bytes) {
  constexpr std::uint32_t kEndOfFile = 14;
  constexpr std::size_t kHeaderBytes = 88;
  constexpr double kUnitsPerInch = 2540;
  const std::size_t whole = Number(bytes, 48, 4);
  if (bytes.size() < kHeaderBytes || whole > bytes.size()) return {};
  std::uint32_t type = 0;
  for (std::size_t at = 0; at < whole && type != kEndOfFile;) {
    type = Number(bytes, at, 4);
    const std::size_t length = Number(bytes, at + 4, 4);
    const bool first = at == 0;
    if (first != (type == 1) || length < (first ? kHeaderBytes : 8) || length % 4 != 0) return {};
    if (length > whole - at) return {};
    at += length;
  }
  if (type != kEndOfFile) return {};
  const auto side = [bytes](std::size_t low) {
    const auto from = static_cast<std::int32_t>(Number(bytes, low, 4));
    const auto to = static_cast<std::int32_t>(Number(bytes, low + 8, 4));
    return Pixels((static_cast<double>(to) - from) / kUnitsPerInch);
  };
  return {MetafileKind::kEnhanced, {side(24), side(28)}};
}

// Header: [MS-WMF] 2.3.2.3 and 2.3.2.2. Records: length in words (four bytes), function (two).
MetafileFrame PlaceableFrame(std::string_view bytes) {
  constexpr std::size_t kHeaderBytes = 18;
  const std::string_view body = bytes.substr(
      std::min<std::size_t>(bytes.size(), static_cast<std::size_t>(kPlaceableHeaderBytes)));
  if (body.size() < kHeaderBytes || Number(body, 2, 2) != kHeaderBytes / 2) return {};
  for (std::size_t at = kHeaderBytes;;) {
    const std::size_t words = Number(body, at, 4);
    if (words < 3 || words > (body.size() - at) / 2) return {};
    if (Number(body, at + 4, 2) == 0) break;
    at += words * 2;
    if (at >= body.size()) return {};
  }
  const double per_inch = std::max<std::uint32_t>(Number(bytes, 14, 2), 1);
  const auto side = [bytes, per_inch](std::size_t low) {
    const auto from = static_cast<std::int16_t>(Number(bytes, low, 2));
    const auto to = static_cast<std::int16_t>(Number(bytes, low + 4, 2));
    return Pixels(std::abs(to - from) / per_inch);
  };
  return {MetafileKind::kPlaceable, {side(6), side(8)}};
}

}  // namespace

MetafileFrame ReadMetafileFrame(std::string_view bytes) {
  constexpr std::uint32_t kPlaceableKey = 0x9AC6CDD7;
  constexpr std::uint32_t kEnhancedSignature = 0x464D4520;  // " EMF"
  if (Number(bytes, 0, 4) == kPlaceableKey) return PlaceableFrame(bytes);
  if (Number(bytes, 0, 4) == 1 && Number(bytes, 40, 4) == kEnhancedSignature) {
    return EnhancedFrame(bytes);
  }
  return {};
}

}  // namespace varnel
