// The user's system colours, as the platform gives them.
#pragma once

#include <windows.h>

#include "theme/colour.h"

namespace varnel {

class UserSystemColours : public SystemColours {
 public:
  Colour Resolve(int index) const override {
    // An index that the system does not know has no brush either.
    return ::GetSysColorBrush(index) ? static_cast<Colour>(::GetSysColor(index)) : kNoColour;
  }
};

}  // namespace varnel
