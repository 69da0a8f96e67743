// The frame of Windows metafiles: what has to hold before the platform may play one.
#pragma once

#include <string_view>

#include "base/geometry.h"

namespace varnel {

enum class MetafileKind { kNone, kEnhanced, kPlaceable };

struct MetafileFrame {
  MetafileKind kind = MetafileKind::kNone;
  Size size;  // in pixels at 96 dots to the inch, 1 at the least
};

// Looks through the records of an enhanced metafile, or of an old one that begins with the
// placeable header (which alone tells its size). kNone for anything else, and where a record
// reaches beyond the bytes, is too short to be one, or the last one is missing.
MetafileFrame ReadMetafileFrame(std::string_view bytes);

// The placeable header's length in bytes; the metafile proper follows.
inline constexpr int kPlaceableHeaderBytes = 22;

}  // namespace varnel
