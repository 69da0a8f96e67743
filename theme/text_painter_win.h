// Text that can be read on any ground: where its own colour does not stand out enough, it gets a
// halo.
#pragma once

#include <string>

#include "theme/colour.h"
#include "win/fonts.h"
#include "win/surface.h"
#include "win/ui.h"

namespace varnel {

enum class Align { kLeft, kCentre, kRight };

// All colours are plain ones, no system colour names.
struct TextStyle {
  FontSpec font;
  Colour colour = kWhite;
  Colour ground = kBlack;     // what the text stands on
  Colour halo_base = kBlack;  // the colour whose shades a halo is made of
  Align align = Align::kCentre;
  int side_room = 0;  // pixels kept free of letters at the left and right ends of the box
  int dpi = kDefaultDpi;
  bool wrap = false;   // several lines, broken at words
  bool faint = false;  // half lost in the ground and without a halo: what cannot be used now
  bool operator==(const TextStyle&) const = default;
};

// Paints one line of `text` into `box` (pixels of the surface), centred from top to bottom. Text
// too long for the box ends in an ellipsis. Only pixels inside the box change.
void PaintText(Ui& ui, Surface& surface, const Rect& box, const std::wstring& text,
               const TextStyle& style);

// The most room, in pixels, that a halo takes around text on a screen of `dpi`.
int HaloRoom(int dpi);

}  // namespace varnel
