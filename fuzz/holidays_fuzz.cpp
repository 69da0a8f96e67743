// Any bytes as the file of holidays.
#include "fuzz/require.h"
#include "widgets/boards/holidays.h"

using namespace varnel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Holidays days(BytesOf(data, size));
  std::size_t named = 0;
  for (int month = 1; month <= 12; ++month) {
    for (int day = 1; day <= DaysIn({2000, month}); ++day) {
      const std::wstring name = days.NameOf({2000, month, day});
      Require(name.size() <= Holidays::kLongestName && name.find(L'\n') == name.npos);
      named += name.empty() ? 0 : 1;
    }
  }
  Require(days.count() <= Holidays::kMostDays && (named == 0 || days.count() > 0));
  return 0;
}
