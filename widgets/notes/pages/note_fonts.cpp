#include "widgets/notes/pages/note_fonts.h"

#include <algorithm>

namespace varnel {
namespace {

constexpr int kTwipsPerHalfPoint = 10;
constexpr int kMostExtent = 1 << 18;  // twips; whatever a measure answers, sums stay small

FontExtent Limited(const FontExtent& extent) {
  const auto limited = [](int length) { return std::clamp(length, 0, kMostExtent); };
  return {limited(extent.ascent), limited(extent.descent), limited(extent.leading)};
}

}  // namespace

const CharFormat& NoteFonts::Format(std::uint32_t format) const {
  static const CharFormat plain;
  return document_.char_formats.empty() ? plain : document_.char_formats[format];
}

const NoteFont& NoteFonts::Of(std::uint32_t format, LetterCase letters) {
  const bool small = letters == LetterCase::kSmallCapital;
  NoteFont& known = fonts_[2 * std::size_t{format} + (small ? 1 : 0)];
  if (known.measured) return known;
  const CharFormat& of = Format(format);
  int half_points = of.half_points;
  int raised = of.raised * kTwipsPerHalfPoint;
  if (of.script == Script::kSuper) raised += half_points * kTwipsPerHalfPoint / 3;
  if (of.script == Script::kSub) raised -= half_points * kTwipsPerHalfPoint / 6;
  if (of.script != Script::kNormal) half_points = half_points * 2 / 3;
  if (small) half_points = half_points * 4 / 5;
  const RtfFont named = of.font < document_.fonts.size() ? document_.fonts[of.font] : RtfFont{};
  known.font = {named.name, named.charset, std::max(half_points, 2), of.bold, of.italic};
  known.extent = Limited(measure_.Extent(known.font));
  known.raised = raised;
  known.measured = true;
  return known;
}

}  // namespace varnel
