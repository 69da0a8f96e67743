// Pictures made smaller by a whole factor.
#pragma once

#include <cstdint>
#include <span>

#include "base/geometry.h"

namespace varnel {

// Every pixel of `small`, which is `size`, becomes the mean of the `factor` x `factor` (1 to 8)
// pixels of `large` that it stands for; both row by row. Spans that are shorter than the sizes say
// are left alone. The top bytes become 0.
void BoxShrink(std::span<const std::uint32_t> large, Size size, int factor,
               std::span<std::uint32_t> small);

}  // namespace varnel
