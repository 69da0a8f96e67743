// A few system colours that never change, for tests.
#pragma once

#include "theme/colour.h"

namespace varnel::test {

class FixedSystemColours : public SystemColours {
 public:
  // Index 5 is white, 8 black, 13 a blue; there are no others.
  Colour Resolve(int index) const override {
    switch (index) {
      case 5:
        return kWhite;
      case 8:
        return kBlack;
      case 13:
        return 0xC06010;
      default:
        return kNoColour;
    }
  }
};

// The colour value that names the system colour `index`.
constexpr Colour SystemColour(int index) {
  return static_cast<Colour>(0x80000000U | static_cast<unsigned>(index));
}

}  // namespace varnel::test
