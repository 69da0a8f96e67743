#include <gtest/gtest.h>

#include "tests/support/fixed_system_colours.h"
#include "theme/contrast.h"
#include "theme/widget_paint.h"

namespace varnel {
namespace {

TEST(WidgetPaint, IsTheThemeWithItsSystemColoursResolved) {
  const test::FixedSystemColours system;
  ThemeRecord theme;
  theme.lngTHEMECOLOR = test::SystemColour(13);
  theme.lngTHEMEBARFONTCOLOR = test::SystemColour(8);
  ThemeRecord same = theme;
  const WidgetPaint paint = WidgetPaintOf(theme, false, system);
  EXPECT_EQ(paint.chrome, ApplyChrome(same, system));
  EXPECT_EQ(theme, same) << "the theme itself has its derived colours and keeps its names";
  EXPECT_EQ(paint.theme.lngTHEMECOLOR, 0xC06010);
  EXPECT_EQ(paint.theme.lngTHEMEBARFONTCOLOR, kBlack);
  EXPECT_EQ(paint.theme.bytTHEMEOPACITY, theme.bytTHEMEOPACITY);
  EXPECT_EQ(ButtonColours(paint, ButtonLook::kHover, system),
            ButtonColours(theme, ButtonLook::kHover, system));
}

TEST(WidgetPaint, HighContrastTakesTheSystemsColoursAndNoTranslucency) {
  // Yellow on black with a green highlight.
  const test::FixedSystemColours system(
      {{5, kBlack}, {15, kBlack}, {8, 0x00FFFF}, {18, 0x00FFFF}, {13, 0x008000}});
  ThemeRecord theme;
  theme.bytTHEMEOPACITY = 110;
  theme.strTHEMEPANELFONTNAME = L"Verdana";
  const WidgetPaint paint = WidgetPaintOf(theme, true, system);
  EXPECT_EQ(theme.bytTHEMEOPACITY, 110) << "the user's own theme must come back afterwards";
  EXPECT_EQ(paint.theme.bytTHEMEOPACITY, 255);
  EXPECT_EQ(paint.theme.strTHEMEPANELFONTNAME, L"Verdana");
  EXPECT_EQ(paint.chrome.ground, kBlack);
  EXPECT_EQ(paint.chrome.bar, (ColourPair{kBlack, kBlack}));
  EXPECT_EQ(paint.theme.lngTHEMEPANELFONTCOLOR, 0x00FFFF);
  EXPECT_EQ(paint.theme.lngTHEMEBARFONTCOLOR, 0x00FFFF);
  EXPECT_GT(ContrastRatio(paint.chrome.border, paint.chrome.ground), 4.5);
  EXPECT_EQ(CardColours(paint, system), (ColourPair{kBlack, 0x00FFFF}));
  const ColourPair normal = ButtonColours(paint, ButtonLook::kNormal, system);
  EXPECT_EQ(normal, (ColourPair{kBlack, 0x00FFFF}));
  EXPECT_NE(ButtonColours(paint, ButtonLook::kHover, system), normal);
  EXPECT_NE(ButtonColours(paint, ButtonLook::kPressed, system),
            ButtonColours(paint, ButtonLook::kHover, system));
}

}  // namespace
}  // namespace varnel
