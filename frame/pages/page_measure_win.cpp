#include "frame/pages/page_measure_win.h"

#include <algorithm>
#include <vector>

#include "base/letters.h"

namespace varnel {
namespace {

constexpr int kEm = 2048;  // pixels that faces are measured at
constexpr int kTwipsPerHalfPoint = 10;
constexpr wchar_t kSimple = 0x250;  // letters below it stand one by one, as wide as they are
constexpr int kUnknown = -1;
constexpr int kLongestText = 8192;  // units that the platform measures at once

constexpr int ToTwips(long long pixels, int em) {
  return static_cast<int>((pixels * em + kEm / 2) / kEm);
}

// A mark, or half of a pair, belongs to the letter before it.
bool BeginsLetter(std::wstring_view text, std::size_t at) {
  const wchar_t unit = text[at];
  if (unit >= 0xDC00 && unit <= 0xDFFF) return false;
  return KindOf(CharacterAt(text, at).point) != CharacterKind::kMark;
}

}  // namespace

LOGFONTW DescriptionOf(const PageFont& font, int height) {
  LOGFONTW description = {};
  description.lfHeight = -std::max(height, 1);
  description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  description.lfItalic = font.italic;
  const bool named = font.charset > 1 && font.charset <= 255;
  description.lfCharSet = static_cast<BYTE>(named ? font.charset : DEFAULT_CHARSET);
  description.lfOutPrecision = OUT_TT_ONLY_PRECIS;  // what can be scaled
  description.lfQuality = CLEARTYPE_QUALITY;
  const std::wstring& name = font.name.empty() ? std::wstring(L"Tahoma") : font.name;
  name.copy(description.lfFaceName, LF_FACESIZE - 1);
  return description;
}

struct SystemPageMeasure::Face {
  UniqueFont font;
  TEXTMETRICW metrics = {};
  std::array<int, kSimple> widths;  // in pixels of an em of kEm
};

SystemPageMeasure::SystemPageMeasure() : dc_(::CreateCompatibleDC(nullptr)) {}
SystemPageMeasure::~SystemPageMeasure() = default;

SystemPageMeasure::Face& SystemPageMeasure::FaceOf(const PageFont& font) {
  if (last_ && last_font_.charset == font.charset && last_font_.bold == font.bold &&
      last_font_.italic == font.italic && last_font_.name == font.name) {
    return *last_;
  }
  std::unique_ptr<Face>& face = faces_[{font.name, font.charset, font.bold, font.italic}];
  if (!face) {
    face = std::make_unique<Face>();
    const LOGFONTW description = DescriptionOf(font, kEm);
    face->font = UniqueFont(::CreateFontIndirectW(&description));
    face->widths.fill(kUnknown);
    const SelectedObject selected(dc_.get(), face->font.get());
    ::GetTextMetricsW(dc_.get(), &face->metrics);
  }
  last_font_ = font;
  last_ = face.get();
  return *last_;
}

FontExtent SystemPageMeasure::Extent(const PageFont& font) {
  const TEXTMETRICW& metrics = FaceOf(font).metrics;
  const int em = font.half_points * kTwipsPerHalfPoint;
  return {ToTwips(metrics.tmAscent, em), ToTwips(metrics.tmDescent, em),
          ToTwips(metrics.tmExternalLeading, em)};
}

void SystemPageMeasure::Measure(const PageFont& font, std::wstring_view text, std::span<int> ends) {
  Face& face = FaceOf(font);
  const int em = font.half_points * kTwipsPerHalfPoint;
  if (!MeasureSimple(face, text, em, ends)) MeasureWhole(face, text, em, ends);
}

bool SystemPageMeasure::MeasureSimple(Face& face, std::wstring_view text, int em,
                                      std::span<int> ends) {
  if (std::ranges::any_of(text, [](wchar_t unit) { return unit >= kSimple; })) return false;
  long long width = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    int& own = face.widths[text[i]];
    if (own == kUnknown) {
      const SelectedObject selected(dc_.get(), face.font.get());
      SIZE size = {};
      ::GetTextExtentPoint32W(dc_.get(), &text[i], 1, &size);
      own = static_cast<int>(size.cx);
    }
    width += own;
    ends[i] = ToTwips(width, em);
  }
  return true;
}

void SystemPageMeasure::MeasureWhole(Face& face, std::wstring_view text, int em,
                                     std::span<int> ends) {
  const SelectedObject selected(dc_.get(), face.font.get());
  long long before = 0;
  for (std::size_t from = 0; from < text.size(); from += kLongestText) {
    const std::wstring_view part = text.substr(from, kLongestText);
    std::vector<int> widths(part.size());
    SIZE size = {};
    int fitting = 0;
    ::GetTextExtentExPointW(dc_.get(), part.data(), static_cast<int>(part.size()), 0, &fitting,
                            widths.data(), &size);
    long long widest = 0;
    for (std::size_t i = 0; i < part.size(); ++i) {
      widest = std::max<long long>(widest, widths[i]);
      ends[from + i] = ToTwips(before + widest, em);
    }
    before += widest;
  }
  for (std::size_t i = text.size() - 1; i > 0; --i) {
    if (!BeginsLetter(text, i)) ends[i - 1] = ends[i];
  }
}

}  // namespace varnel
