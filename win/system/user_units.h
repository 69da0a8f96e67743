// The units and signs of the user's locale.
#pragma once

#include "base/length_text.h"

namespace varnel {

LengthUnit UserLengthUnit();
// What stands between the whole and the parts of a number.
wchar_t UserDecimal();

}  // namespace varnel
