#include "dialogs/preview/preview_layout.h"

#include <algorithm>

namespace varnel {

PreviewLayout LayOutPreview(const PreviewParts& parts) {
  PreviewLayout layout;
  Point at{parts.gap, parts.gap};
  for (const int width : parts.groups) {
    if (at.x > parts.gap && at.x + width + parts.gap > parts.client.width) {
      at = {parts.gap, at.y + parts.tool_height + parts.gap};
    }
    layout.groups.push_back(at);
    at.x += width + 2 * parts.gap;
  }
  const int top = at.y + parts.tool_height + parts.gap;
  const int bottom = std::max(parts.client.height - parts.status_height, top);
  layout.status = {parts.gap, bottom, std::max(parts.client.width - parts.gap, parts.gap),
                   std::max(parts.client.height, bottom)};
  int left = 0;
  int right = parts.client.width;
  const int least = parts.client.width / 3;
  if (parts.setup.width > 0 && right - parts.setup.width >= least) {
    right -= parts.setup.width;
    layout.setup = {right, top, parts.client.width, std::max(bottom, top + parts.setup.height)};
  }
  if (parts.thumbs_width > 0 && right - parts.thumbs_width >= least) {
    left = parts.thumbs_width;
    layout.thumbs = {0, top, left, bottom};
  }
  layout.sheets = {left, top, std::max(right, left), bottom};
  return layout;
}

}  // namespace varnel
