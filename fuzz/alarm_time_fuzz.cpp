// Alarm times as a user may have written them, UTF-8 in the input: what is understood is a time of
// day and rings in its second alone; what is not stays as it is.
#include <string>

#include "base/number_text.h"
#include "base/text.h"
#include "fuzz/require.h"
#include "widgets/time/alarms.h"

using namespace varnel;

namespace {

// The number at `at` of a text "hh:nn:ss", -1 where there is none.
int NumberAt(const std::wstring& text, std::size_t at) {
  return static_cast<int>(WholeNumber(text.substr(at, 2)).value_or(-1));
}

void CheckTimeOfDay(const std::wstring& time, const AlarmPresets& presets) {
  Require(time.size() == 8 && time[2] == L':' && time[5] == L':');
  LocalTime moment;
  moment.hour = NumberAt(time, 0);
  moment.minute = NumberAt(time, 3);
  moment.second = NumberAt(time, 6);
  Require(moment.hour >= 0 && moment.hour < 24 && moment.minute >= 0 && moment.minute < 60 &&
          moment.second >= 0 && moment.second < 60);
  Require(AlarmRefresh(presets, moment).size() == 1);
  moment.second = (moment.second + 1) % 60;
  Require(AlarmRefresh(presets, moment).empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text = WideFromUtf8(BytesOf(data, size));
  const std::wstring time = AlarmTimeText(text);
  Require(AlarmTimeText(time) == time);
  AlarmPresets presets;
  presets[0] = {true, text, L"message"};
  if (time != Trim(text)) {
    CheckTimeOfDay(time, presets);
  } else if (time.size() < 8) {
    Require(AlarmRefresh(presets, {}).empty());
  }
  return 0;
}
