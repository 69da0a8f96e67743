// The window sizes that the size commands give, in twips.
#pragma once

#include <optional>

#include "base/geometry.h"

namespace varnel {

inline constexpr Size kFixedSizes[] = {{7500, 5250}, {4950, 3500}, {2400, 1600}};
inline constexpr Size kSmallestSize = kFixedSizes[2];  // that the size grip gives
inline constexpr int kScreenParts[] = {1, 2, 4, 8};

// The command's fixed size; nothing for an index outside 0 to 2.
std::optional<Size> FixedSize(int index);

// The size of a widget that never had another: 5900 wide and 1.7 times as wide as high.
Size DefaultSize();

// `screen` divided by kScreenParts[index] in both directions, each result rounded, halves to even;
// nothing for an index outside 0 to 3.
std::optional<Size> ScreenPartSize(Size screen, int index);

}  // namespace varnel
