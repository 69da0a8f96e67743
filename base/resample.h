// Pictures at another size.
#pragma once

#include "base/axis_map.h"
#include "base/geometry.h"
#include "base/image.h"

namespace varnel {

// Puts what `shown` shows of `kept` (both premultiplied) into `part` of it; outside of `kept`
// nothing is shown. Sharp both ways (a cubic filter after Catmull and Rom, as wide as what a shown
// pixel stands for), and exact where an axis is not scaled. Each part of an axis shows itself
// alone: nothing spreads over its edge into the next.
void Resample(const Image& kept, const AxisMap& across, const AxisMap& down, Image& shown,
              const Rect& part);

// The whole picture at `size`; empty where a raster of that size is.
Image Resampled(const Image& picture, Size size);

}  // namespace varnel
