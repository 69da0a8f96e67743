// A few system colours that never change, for tests.
#pragma once

#include <map>
#include <utility>

#include "theme/colour.h"

namespace varnel::test {

class FixedSystemColours : public SystemColours {
 public:
  // Index 5 is white, 8 black, 13 a blue, unless others are given; there are no more.
  explicit FixedSystemColours(std::map<int, Colour> colours = {{5, kWhite},
                                                               {8, kBlack},
                                                               {13, 0xC06010}})
      : colours_(std::move(colours)) {}
  Colour Resolve(int index) const override {
    const auto found = colours_.find(index);
    return found == colours_.end() ? kNoColour : found->second;
  }

 private:
  std::map<int, Colour> colours_;
};

// The colour value that names the system colour `index`.
constexpr Colour SystemColour(int index) {
  return static_cast<Colour>(0x80000000U | static_cast<unsigned>(index));
}

}  // namespace varnel::test
