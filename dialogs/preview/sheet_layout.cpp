#include "dialogs/preview/sheet_layout.h"

#include <algorithm>
#include <cmath>

namespace varnel {
namespace {

constexpr double kLeastScale = 0.002;  // pixels a twip: something is to be seen in any view

double ScaleOf(const SheetRoom& room, int columns) {
  const double natural = static_cast<double>(room.dpi) / kTwipsPerInch;
  if (room.zoom.kind == SheetZoom::Kind::kPercent) return natural * room.zoom.percent / 100;
  const double across =
      static_cast<double>(room.view.width - room.extra_width - room.gap * (columns + 1)) /
      (static_cast<double>(room.paper.width) * columns);
  const double down =
      static_cast<double>(room.view.height - 2 * room.gap - room.caption) / room.paper.height;
  const double fitting =
      room.zoom.kind == SheetZoom::Kind::kPageWidth ? across : std::min(across, down);
  return std::clamp(fitting, kLeastScale, natural * kMostPercent / 100);
}

int Pixels(int twips, double scale) {
  return std::max(static_cast<int>(std::lround(twips * scale)), 1);
}

}  // namespace

SheetLayout::SheetLayout(const SheetRoom& room) : room_(room) {
  room_.paper.width = std::max(room.paper.width, 1);
  room_.paper.height = std::max(room.paper.height, 1);
  columns_ = std::clamp(room.columns, 1, std::max(room.pages, 1));
  scale_ = ScaleOf(room_, columns_);
  sheet_ = {Pixels(room_.paper.width, scale_), Pixels(room_.paper.height, scale_)};
  const int wide = columns_ * (sheet_.width + room.gap) + room.gap;
  const int high = Rows() * RowHeight() + room.gap;
  whole_ = {std::max(wide, room.view.width), std::max(high, room.view.height)};
  left_ = (whole_.width - wide) / 2 + room.gap;
  top_ = (room.from_top ? 0 : (whole_.height - high) / 2) + room.gap;
}

int SheetLayout::percent() const {
  return static_cast<int>(std::lround(scale_ * kTwipsPerInch * 100 / std::max(room_.dpi, 1)));
}

Rect SheetLayout::Sheet(int page) const {
  const int column = page % columns_;
  return RectAt({left_ + column * (sheet_.width + room_.gap), top_ + page / columns_ * RowHeight()},
                sheet_);
}

SheetLayout::Pages SheetLayout::PagesIn(const Rect& part) const {
  const auto row_at = [this](int y) {
    return std::clamp((y - top_) / RowHeight(), 0, std::max(Rows() - 1, 0));
  };
  if (room_.pages == 0 || part.empty()) return {};
  return {row_at(part.top) * columns_,
          std::min((row_at(part.bottom - 1) + 1) * columns_, room_.pages) - 1};
}

int SheetLayout::PageAt(Point at) const {
  const Pages near = PagesIn({at.x, at.y, at.x + 1, at.y + 1});
  for (int page = near.first; page <= near.last; ++page) {
    if (Sheet(page).Contains(at)) return page;
  }
  return -1;
}

Point SheetLayout::Bounded(Point scroll) const {
  return {std::clamp(scroll.x, 0, whole_.width - room_.view.width),
          std::clamp(scroll.y, 0, whole_.height - room_.view.height)};
}

Point SheetLayout::ScrollTo(int page, Point scroll) const {
  const Rect sheet = Sheet(page);
  if (sheet.width() + 2 * room_.gap <= room_.view.width) {
    scroll = Revealing(page, scroll);
  }
  return Bounded({scroll.x, sheet.top - room_.gap});
}

Point SheetLayout::Revealing(int page, Point scroll) const {
  const Rect sheet = Sheet(page);
  const auto reveal = [gap = room_.gap](int low, int high, int view, int at) {
    return std::min(std::max(at, high + gap - view), low - gap);
  };
  return Bounded({reveal(sheet.left, sheet.right, room_.view.width, scroll.x),
                  reveal(sheet.top, sheet.bottom + room_.caption, room_.view.height, scroll.y)});
}

int SheetLayout::PageShown(Point scroll) const {
  const Rect view = RectAt(scroll, room_.view);
  const Pages seen = PagesIn(view);
  int shown = std::max(seen.first, 0);
  long long most = 0;
  for (int page = seen.first; page <= seen.last; ++page) {
    const Rect part = Intersection(Sheet(page), view);
    const long long area = static_cast<long long>(part.width()) * part.height();
    if (area > most) {
      most = area;
      shown = page;
    }
  }
  return shown;
}

Point KeptInPlace(const SheetLayout& before, Point scroll, Point at, const SheetLayout& after) {
  const Point there{scroll.x + at.x, scroll.y + at.y};
  int page = before.PageAt(there);
  if (page < 0) page = before.PageShown(scroll);
  if (before.pages() == 0 || page >= after.pages()) return after.Bounded(scroll);
  const Rect former = before.Sheet(page);
  const Rect now = after.Sheet(page);
  const auto moved = [](int place, int low, int size, int new_low, int new_size) {
    return new_low + static_cast<int>(std::lround(static_cast<double>(place - low) * new_size /
                                                  std::max(size, 1)));
  };
  return after.Bounded({moved(there.x, former.left, former.width(), now.left, now.width()) - at.x,
                        moved(there.y, former.top, former.height(), now.top, now.height()) - at.y});
}

}  // namespace varnel
