// The line below the weather: how old the data is, what goes wrong, and whom it comes from.
#pragma once

#include <string>
#include <string_view>

#include "base/text_measure.h"

namespace varnel {

struct WeatherStatus {
  std::wstring updated;  // when the data shown came, as "12:01"; empty while there is none
  bool fetching = false;
  std::wstring
      failure;        // why the last fetch failed, as words within a sentence; empty if it did not
  bool live = false;  // the data shown comes from the live source, which wants to be named
};

struct WeatherStrip {
  std::wstring status;
  std::wstring attribution;
  bool operator==(const WeatherStrip&) const = default;
};

// The longest texts that go side by side, `gap` apart, into `room` pixels in a font of
// `font_height`. The attribution is there whatever the room, the status only if it fits; alone it
// is given anyway, for it may end in an ellipsis.
WeatherStrip ChooseStrip(const WeatherStatus& status, int room, int gap, int font_height,
                         const TextMeasure& measure);

// A complaint, "The answer is empty.", as words within a sentence: "the answer is empty".
std::wstring AsReason(std::wstring_view complaint);

}  // namespace varnel
