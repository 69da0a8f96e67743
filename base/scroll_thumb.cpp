#include "base/scroll_thumb.h"

#include <algorithm>

namespace varnel {
namespace {

// The thumb's length, and the way that its top can go.
struct Travel {
  int length;
  int way;
};

Travel TravelIn(const Rect& track, const ScrollRange& range, int least_length) {
  const long long share = static_cast<long long>(track.height()) * range.page / range.count;
  const int length = std::min(std::max(static_cast<int>(share), least_length), track.height());
  return {length, track.height() - length};
}

bool AllSeen(const Rect& track, const ScrollRange& range) {
  return track.empty() || range.page < 1 || range.page >= range.count;
}

}  // namespace

Rect ThumbIn(const Rect& track, const ScrollRange& range, int least_length) {
  if (AllSeen(track, range)) return {};
  const Travel travel = TravelIn(track, range, least_length);
  const int last_first = range.count - range.page;
  const long long first = std::clamp(range.first, 0, last_first);
  const int top = track.top + static_cast<int>(travel.way * first / last_first);
  return {track.left, top, track.right, top + travel.length};
}

int FirstAtThumb(const Rect& track, const ScrollRange& range, int least_length, int top) {
  if (AllSeen(track, range)) return 0;
  const Travel travel = TravelIn(track, range, least_length);
  if (travel.way == 0) return 0;
  const long long moved = std::clamp(top - track.top, 0, travel.way);
  const long long last_first = range.count - range.page;
  return static_cast<int>((moved * last_first + travel.way / 2) / travel.way);
}

}  // namespace varnel
