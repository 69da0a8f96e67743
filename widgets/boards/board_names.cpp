#include "widgets/boards/board_names.h"

#include "base/number_text.h"

namespace varnel {

std::wstring NewBoardName(const LocalTime& time) {
  return L"pic_" + PaddedNumber(time.year, 4) + PaddedNumber(time.month, 2) +
         PaddedNumber(time.day, 2) + L"_" + PaddedNumber(time.hour, 2) +
         PaddedNumber(time.minute, 2) + PaddedNumber(time.second, 2);
}

}  // namespace varnel
