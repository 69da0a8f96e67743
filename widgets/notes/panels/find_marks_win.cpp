#include "widgets/notes/panels/find_marks_win.h"

#include <algorithm>

#include "base/geometry.h"

namespace varnel {
namespace {

// Laid over bright paper by "and", over dark paper by "or": however often that is done, letters and
// paper come out the same.
constexpr COLORREF kOverBright = RGB(255, 228, 110);
constexpr COLORREF kOverDark = RGB(96, 72, 0);
constexpr DWORD kAndBrush = 0x00A000C9;
constexpr DWORD kOrBrush = 0x00FA0089;
constexpr int kHalfBright = 128;
constexpr int kAround = 2;  // units on either side that decide about a hit
constexpr int kHalfPointsPerInch = 144;

bool PaperIsDark() {
  return GetGValue(::GetSysColor(COLOR_WINDOW)) < kHalfBright;
}

}  // namespace

FindMarks::FindMarks(RichEdit& edit) : edit_(edit) {
  edit_.TellPainted([this] { Paint(); });
}

FindMarks::~FindMarks() {
  edit_.TellPainted(nullptr);
}

void FindMarks::Show(std::wstring_view wanted, unsigned options) {
  if (wanted == wanted_ && options == options_) return;
  wanted_ = wanted;
  options_ = options;
  ::InvalidateRect(edit_.handle(), nullptr, TRUE);
}

void FindMarks::Paint() {
  RECT client = {};
  ::GetClientRect(edit_.handle(), &client);
  if (wanted_.empty() || client.bottom <= 0 || edit_.Length() > kLongest) return;
  const TextFinder finder(wanted_, options_);
  const int around = static_cast<int>(wanted_.size()) + kAround;
  const int begin = std::max(edit_.PositionAt({0, 0}) - around, 0);
  const int end =
      edit_.PositionAt({static_cast<int>(client.right), static_cast<int>(client.bottom)});
  std::vector<std::size_t> hits = AllHits(edit_.Units({begin, end + around}), finder);
  if (hits.empty()) return;
  hits.resize(std::min(hits.size(), kMost));
  const RichRange selection = edit_.Selection();
  HDC dc = ::GetDC(edit_.handle());
  ::HideCaret(edit_.handle());
  HGDIOBJ former = ::SelectObject(dc, ::GetStockObject(DC_BRUSH));
  ::SetDCBrushColor(dc, PaperIsDark() ? kOverDark : kOverBright);
  for (const std::size_t hit : hits) {
    const int from = begin + static_cast<int>(hit);
    const RichRange range{from, from + static_cast<int>(wanted_.size())};
    const bool selected = range.from < selection.to && selection.from < range.to;
    if (!selected) PaintHit(dc, range);
  }
  ::SelectObject(dc, former);
  ::ShowCaret(edit_.handle());
  ::ReleaseDC(edit_.handle(), dc);
}

// Each line that the hit stands in by itself.
void FindMarks::PaintHit(HDC dc, RichRange hit) const {
  const int dpi = static_cast<int>(::GetDpiForWindow(edit_.handle()));
  const int letter = ::MulDiv(edit_.DefaultFormat().half_points.value_or(24),
                              dpi * edit_.Zoom() / 100, kHalfPointsPerInch);
  for (int line = edit_.LineOf(hit.from); hit.from < hit.to; ++line) {
    const int next = edit_.LineStart(line + 1);
    const bool goes_on = next > hit.from && next < hit.to;
    const Point top = edit_.PointOf(hit.from);
    const int right = edit_.PointOf(goes_on ? next - 1 : hit.to).x;
    const int below = next > hit.from ? edit_.PointOf(next).y : 0;
    const int bottom = below > top.y ? below : top.y + letter * 5 / 4;
    if (right > top.x) {
      ::PatBlt(dc, top.x, top.y, right - top.x, bottom - top.y,
               PaperIsDark() ? kOrBrush : kAndBrush);
    }
    hit.from = goes_on ? next : hit.to;
  }
}

}  // namespace varnel
