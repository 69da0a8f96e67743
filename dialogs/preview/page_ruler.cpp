#include "dialogs/preview/page_ruler.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "base/number_text.h"

namespace varnel {
namespace {

constexpr double kMillimetre = kTwipsPerInch / 25.4;

// How a ruler is divided: what lies between two labels, what a label counts, and into how many
// parts it goes.
struct Division {
  double labelled;  // twips
  int counts;       // of the unit, between two labels
  int parts;
};
constexpr std::array<Division, 5> kMetric = {{{10 * kMillimetre, 10, 10},
                                              {10 * kMillimetre, 10, 4},
                                              {20 * kMillimetre, 20, 4},
                                              {50 * kMillimetre, 50, 10},
                                              {100 * kMillimetre, 100, 4}}};
constexpr std::array<Division, 4> kImperial = {{{kTwipsPerInch, 1, 16},
                                                {kTwipsPerInch, 1, 8},
                                                {kTwipsPerInch, 1, 4},
                                                {4 * kTwipsPerInch, 4, 8}}};
constexpr double kLabelRoom = 6;  // times what the finest marks have

template <std::size_t kCount>
Division DivisionOf(const std::array<Division, kCount>& divisions, double scale, int least) {
  for (const Division& division : divisions) {
    const double labelled = division.labelled * scale;
    if (labelled / division.parts >= least && labelled >= least * kLabelRoom) return division;
  }
  return divisions.back();
}

// Where the end of a margin is on its ruler.
int PlaceOf(Size paper, const PageMargins& margins, PageEdge edge) {
  const int margin = MarginOf(margins, edge);
  if (edge == PageEdge::kRight) return paper.width - margin;
  return edge == PageEdge::kBottom ? paper.height - margin : margin;
}

}  // namespace

std::vector<RulerMark> RulerMarks(int length, double pixels_per_twip, LengthUnit unit, int least) {
  const Division division = unit == LengthUnit::kMillimetres
                                ? DivisionOf(kMetric, pixels_per_twip, least)
                                : DivisionOf(kImperial, pixels_per_twip, least);
  std::vector<RulerMark> marks;
  for (int i = 0;; ++i) {
    const int at = static_cast<int>(std::lround(division.labelled * i / division.parts));
    if (at > length) return marks;
    const int part = i % division.parts;
    if (part == 0) {
      marks.push_back(
          {at, 0, NumberText(static_cast<long long>(i / division.parts) * division.counts)});
    } else {
      marks.push_back({at, part * 2 == division.parts ? 1 : 2, {}});
    }
  }
}

std::optional<PageEdge> EdgeNear(const PageSetup& setup, bool across, int at, int reach) {
  const PageEdge edges[] = {across ? PageEdge::kLeft : PageEdge::kTop,
                            across ? PageEdge::kRight : PageEdge::kBottom};
  std::optional<PageEdge> nearest;
  int least = reach + 1;
  for (const PageEdge edge : edges) {
    const int distance = std::abs(PlaceOf(setup.paper, setup.margins, edge) - at);
    if (distance < least) {
      nearest = edge;
      least = distance;
    }
  }
  return nearest;
}

MarginDrag::MarginDrag(const PageSetup& setup, PageEdge edge, int at, LengthUnit unit)
    : paper_(setup.paper),
      start_(setup.margins),
      edge_(edge),
      hold_(at - PlaceOf(setup.paper, setup.margins, edge)),
      unit_(unit) {}

PageMargins MarginDrag::To(int at, bool fine) const {
  const int place = at - hold_;
  int margin = place;
  if (edge_ == PageEdge::kRight) margin = paper_.width - place;
  if (edge_ == PageEdge::kBottom) margin = paper_.height - place;
  if (!fine) {
    const double step = unit_ == LengthUnit::kMillimetres ? kMillimetre : kTwipsPerInch / 16.0;
    margin = static_cast<int>(std::lround(std::round(margin / step) * step));
  }
  return WithMargin(paper_, start_, edge_, margin);
}

}  // namespace varnel
