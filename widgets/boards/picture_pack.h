// The pictures that the calendar offers, as the program file carries them.
#pragma once

#include <string_view>
#include <vector>

namespace varnel {

struct OfferedPicture {
  std::string_view group;  // "Family"
  std::string_view name;   // "Birthday"; some names occur in two groups
  std::string_view small;  // PNG files of 48 and of 96 pixels
  std::string_view large;
};

// In the order of the picker, group by group: what tools/assets/build_pictures.py has written.
// What is cut off is left out. The views are into `pack`.
std::vector<OfferedPicture> ReadPicturePack(std::string_view pack);

}  // namespace varnel
