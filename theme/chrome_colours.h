// What a widget's chrome is painted with, from the widget's theme.
#pragma once

#include <cstdint>

#include "theme/theme_record.h"

namespace varnel {

struct ColourPair {
  Colour first = kBlack;
  Colour second = kBlack;
  bool operator==(const ColourPair&) const = default;
};

struct ChromeColours {
  Colour ground = kBlack;  // title bar, panel, form and bottom strip
  Colour border = kBlack;  // the line around the widget: the ground darkened
  ColourPair bar;          // the ends of the title bar's gradient
  int bar_angle = 0;       // its direction, in degrees
  bool operator==(const ChromeColours&) const = default;
};

// Derives the theme's two colours anew (DeriveOnChrome) and computes the chrome from them.
ChromeColours DeriveChrome(ThemeRecord& theme, const SystemColours& system);

enum class ButtonLook { kNormal, kHover, kPressed };

// The two colours of a text button; those of kHover and kPressed lean towards the title bar's text.
ColourPair ButtonColours(const ThemeRecord& theme, ButtonLook look, const SystemColours& system);

// The alpha to give a window for a theme's opacity: clamped to 20..255, so that no widget vanishes.
std::uint8_t WindowAlpha(int opacity);

}  // namespace varnel
