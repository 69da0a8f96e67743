#include "frame/panel_strip.h"

#include <algorithm>
#include <optional>

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kMargin = 8;
constexpr int kToolGap = 4;
constexpr int kGroupGap = 12;
constexpr int kStripHeight = 24;
constexpr int kLeastDocument = 40;  // its height
constexpr int kSmallPanel = 200;    // as high, or half as high again as wide: half the margins

class DocumentPanel {
 public:
  DocumentPanel(Size panel, int dpi)
      : dpi_(dpi),
        margin_(panel.height < Px(kSmallPanel) || panel.width < Px(kSmallPanel * 3 / 2)
                    ? Px(kMargin) / 2
                    : Px(kMargin)),
        free_(Inset({0, 0, panel.width, panel.height}, margin_)) {}

  DocumentLayout LayOut(std::span<const StripTool> tools, const DocumentWishes& wishes) {
    DocumentLayout layout;
    layout.tools.resize(tools.size());
    const int below_strip = free_.height() - Px(kStripHeight) - margin_;
    if (!tools.empty() && below_strip >= Px(kLeastDocument)) {
      PlaceTools(tools, layout.tools);
      free_.top = std::min(free_.top + Px(kStripHeight) + margin_, free_.bottom);
    }
    const int panel_height = Px(wishes.open_panel);
    if (panel_height > 0 && (panel_height + margin_) * 5 <= free_.height() * 2) {
      layout.open_panel = free_;
      layout.open_panel.bottom = free_.top + panel_height;
      free_.top = layout.open_panel.bottom + margin_;
    }
    const int list_width = Px(wishes.side_list);
    if (list_width > 0 && (list_width + margin_) * 5 <= free_.width() * 2 &&
        free_.height() >= Px(kLeastDocument)) {
      layout.side_list = free_;
      layout.side_list.right = free_.left + list_width;
      free_.left = layout.side_list.right + margin_;
    }
    if (!free_.empty()) layout.document = free_;
    return layout;
  }

 private:
  int Px(int length) const { return Scaled(length, dpi_); }

  // The widths of all tools up to `rank` side by side, with what stands between them.
  int WidthUpTo(std::span<const StripTool> tools, int rank) const {
    int width = 0;
    for (const StripTool& tool : tools) {
      if (tool.rank > rank) continue;
      if (width > 0) width += Px(tool.new_group ? kGroupGap : kToolGap);
      width += Px(tool.width);
    }
    return width;
  }

  // The highest rank of which all tools, and all of lower ranks, have room.
  std::optional<int> LastRank(std::span<const StripTool> tools) const {
    std::vector<int> ranks;
    for (const StripTool& tool : tools) ranks.push_back(tool.rank);
    std::ranges::sort(ranks, std::ranges::greater());
    for (const int rank : ranks) {
      if (WidthUpTo(tools, rank) <= free_.width()) return rank;
    }
    return std::nullopt;
  }

  void PlaceTools(std::span<const StripTool> tools, std::vector<Rect>& boxes) const {
    const std::optional<int> last = LastRank(tools);
    if (!last) return;
    const auto shown = [&](std::size_t i, bool at_right) {
      return tools[i].rank <= *last && tools[i].at_right == at_right;
    };
    const int bottom = std::min(free_.top + Px(kStripHeight), free_.bottom);
    int left = free_.left;
    for (std::size_t i = 0; i < tools.size(); ++i) {
      if (!shown(i, false)) continue;
      if (left > free_.left) left += Px(tools[i].new_group ? kGroupGap : kToolGap);
      boxes[i] = {left, free_.top, left + Px(tools[i].width), bottom};
      left = boxes[i].right;
    }
    int right = free_.right;
    for (std::size_t i = tools.size(); i-- > 0;) {
      if (!shown(i, true)) continue;
      boxes[i] = {right - Px(tools[i].width), free_.top, right, bottom};
      right = boxes[i].left - Px(tools[i].new_group ? kGroupGap : kToolGap);
    }
  }

  int dpi_;
  int margin_;
  Rect free_;  // what nothing stands in yet
};

}  // namespace

DocumentLayout LayOutDocument(Size panel, int dpi, std::span<const StripTool> tools,
                              const DocumentWishes& wishes) {
  return DocumentPanel(panel, dpi).LayOut(tools, wishes);
}

}  // namespace varnel
