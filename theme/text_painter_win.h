// Text that can be read on any ground: where its own colour does not stand out enough, it is
// written in ink or with a halo.
#pragma once

#include <string>

#include "theme/contrast.h"
#include "win/graphics/fonts.h"
#include "win/graphics/surface.h"
#include "win/windows/ui.h"

namespace varnel {

enum class Align { kLeft, kCentre, kRight };

// How a text is judged: what reads as one with a larger text goes the way of that.
enum class Reads { kByItsHeight, kAsLarge };

// All colours are plain ones, no system colour names.
struct TextStyle {
  FontSpec font;
  Colour colour = kWhite;
  Colour ground = kBlack;  // what the text stands on
  Colour theme = kBlack;   // the colour whose shades ink and halo are made of
  bool readable = true;    // ink and halo are wanted
  // Ink wherever the colour needs help: small letters would lose their shape in a halo.
  bool prefer_ink = false;
  Reads reads = Reads::kByItsHeight;
  Align align = Align::kCentre;
  int side_room = 0;  // pixels kept free of letters at the left and right ends of the box
  int dpi = kDefaultDpi;
  bool tabular = false;  // all figures as wide as the widest, so that none jumps as they change
  bool wrap = false;     // several lines, broken at words
  bool faint = false;    // half lost in the ground and without a halo: what cannot be used now
  bool operator==(const TextStyle&) const = default;
};

// Paints one line of `text` into `box` (pixels of the surface), centred from top to bottom. Text
// too long for the box ends in an ellipsis. Only pixels inside the box change.
void PaintText(Ui& ui, Surface& surface, const Rect& box, const std::wstring& text,
               const TextStyle& style);

// Whether the text is judged as large: 18 points and more, or read as one with such a text.
bool IsLarge(const TextStyle& style);

// What PaintText writes with, before a faint text is lost in its ground.
Writing WritingOf(const TextStyle& style);

// The most room, in pixels, that a halo takes around text on a screen of `dpi`.
int HaloRoom(int dpi);

}  // namespace varnel
