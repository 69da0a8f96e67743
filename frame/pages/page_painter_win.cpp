#include "frame/pages/page_painter_win.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/pages/page_measure_win.h"
#include "win/graphics/surface.h"
#include "win/graphics/system_rect.h"

namespace varnel {
namespace {

constexpr std::size_t kMostFonts = 200;
constexpr double kTwipsPerHalfPoint = 10;
constexpr COLORREF kMissing = RGB(0xC8, 0xC8, 0xC8);

int Across(const PageDevice& device, int twips) {
  return device.corner.x + static_cast<int>(std::lround(twips * device.across));
}
int Down(const PageDevice& device, int twips) {
  return device.corner.y + static_cast<int>(std::lround(twips * device.down));
}
// What is there at all has a pixel at least.
Rect OnDevice(const PageDevice& device, const Rect& area) {
  const int left = Across(device, area.left);
  const int top = Down(device, area.top);
  return {left, top, std::max(Across(device, area.right), left + 1),
          std::max(Down(device, area.bottom), top + 1)};
}

void PaintWave(HDC dc, const Rect& area, COLORREF colour) {
  const int height = std::max(area.height() - 1, 1);
  const int thickness = std::max(height / 3, 1);
  const LOGBRUSH look = {BS_SOLID, colour, 0};
  const UniquePen pen(::ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_JOIN_ROUND,
                                     static_cast<DWORD>(thickness), &look, 0, nullptr));
  const SelectedObject selected(dc, pen.get());
  std::vector<POINT> points;
  for (int x = area.left, i = 0; x <= area.right; x += height, ++i) {
    points.push_back({x, i % 2 ? area.top : area.top + height});
  }
  ::Polyline(dc, points.data(), static_cast<int>(points.size()));
}

void PaintRule(const PlacedRule& rule, const PageDevice& device, COLORREF colour) {
  const Rect area = OnDevice(device, rule.area);
  if (rule.style == RuleStyle::kWave) return PaintWave(device.dc, area, colour);
  if (rule.style == RuleStyle::kSolid) return FillRectangle(device.dc, area, colour);
  const int dash = area.height() * (rule.style == RuleStyle::kDotted ? 1 : 4);
  const int step = dash + area.height() * 2;
  for (int x = area.left; x < area.right; x += step) {
    FillRectangle(device.dc, {x, area.top, std::min(x + dash, area.right), area.bottom}, colour);
  }
}

COLORREF LineColour(std::int32_t colour, const PageDevice& device) {
  return device.colour ? static_cast<COLORREF>(colour & 0xFFFFFF) : RGB(0, 0, 0);
}

}  // namespace

PaintedPage WithPictures(Page page, PagedDocument& document) {
  PaintedPage painted{std::move(page), {}};
  for (const PlacedPicture& picture : painted.page.pictures) {
    painted.pictures.push_back(document.Picture(picture.index));
  }
  return painted;
}

HFONT PagePainter::FontOf(const PageFont& font, int height) {
  UniqueFont& made = fonts_[{font.name, font.charset, height, font.bold, font.italic}];
  if (!made) {
    const LOGFONTW description = DescriptionOf(font, height);
    made = UniqueFont(::CreateFontIndirectW(&description));
  }
  return made.get();
}

// Printers may take long to change fonts, so texts of one font are painted together. They do not
// lie on each other.
void PagePainter::PaintTexts(const std::vector<PlacedText>& texts, const PageDevice& device) {
  if (texts.empty()) return;
  by_font_.clear();
  for (const PlacedText& text : texts) by_font_.push_back(&text);
  std::ranges::stable_sort(by_font_, {}, [](const PlacedText* text) {
    const PageFont& font = text->font;
    return std::tie(font.half_points, font.bold, font.italic, font.charset, font.name);
  });
  const SelectedObject restored(device.dc, ::GetCurrentObject(device.dc, OBJ_FONT));
  const PageFont* selected = nullptr;
  for (const PlacedText* text : by_font_) {
    if (!selected || *selected != text->font) {
      selected = &text->font;
      const double height = selected->half_points * kTwipsPerHalfPoint * device.down;
      ::SelectObject(device.dc, FontOf(*selected, static_cast<int>(std::lround(height))));
    }
    PaintText(*text, device);
  }
}

void PagePainter::PaintText(const PlacedText& text, const PageDevice& device) {
  ::SetTextColor(device.dc, LineColour(text.colour, device));
  const int left = Across(device, text.left);
  const int base_line = Down(device, text.base_line);
  const auto length = static_cast<UINT>(text.text.size());
  if (text.right_to_left) {
    // The platform puts the letters in their order, and joins them.
    ::ExtTextOutW(device.dc, left, base_line, ETO_RTLREADING, nullptr, text.text.data(), length,
                  nullptr);
    return;
  }
  advances_.resize(text.text.size());
  int before = left;
  for (std::size_t i = 0; i < text.ends.size(); ++i) {
    const int end = Across(device, text.left + text.ends[i]);
    advances_[i] = end - std::exchange(before, end);
  }
  ::ExtTextOutW(device.dc, left, base_line, 0, nullptr, text.text.data(), length, advances_.data());
}

void PagePainter::Paint(const PaintedPage& painted, const PageDevice& device) {
  if (fonts_.size() > kMostFonts) fonts_.clear();
  const Page& page = painted.page;
  if (device.colour) {
    for (const PlacedRule& ground : page.grounds) {
      FillRectangle(device.dc, OnDevice(device, ground.area), LineColour(ground.colour, device));
    }
  }
  for (std::size_t i = 0; i < page.pictures.size(); ++i) {
    const Rect area = OnDevice(device, page.pictures[i].area);
    const PagePicture* picture = i < painted.pictures.size() ? painted.pictures[i].get() : nullptr;
    if (picture) {
      picture->Draw(device.dc, area, device.colour);
    } else {
      FillRectangle(device.dc, area, kMissing);
    }
  }
  ::SetBkMode(device.dc, TRANSPARENT);
  ::SetTextAlign(device.dc, TA_BASELINE | TA_LEFT | TA_NOUPDATECP);
  PaintTexts(page.texts, device);
  for (const PlacedRule& rule : page.rules) {
    PaintRule(rule, device, LineColour(rule.colour, device));
  }
}

}  // namespace varnel
