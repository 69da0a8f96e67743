// Whether what is painted can be read: every kind of text in every preset that the program makes.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "base/image.h"
#include "base/text.h"
#include "frame/frame_painter_win.h"
#include "frame/text_buttons_form.h"
#include "tests/support/memory_files.h"
#include "theme/preset.h"
#include "theme/preset_generator.h"

namespace varnel {
namespace {

constexpr Size kSize{180, 90};
constexpr std::uint8_t kLetter = 224;  // the coverage of a pixel that shows the letter's own colour
constexpr int kAround = 2;             // pixels

// Paints a text as the program does. `colours` are those of the button that it stands on.
using Paint = std::function<void(Surface&, const WidgetPaint&, const ColourPair& colours)>;

struct Kind {
  const char* name;
  Rect box;  // where the text is
  bool large;
  Paint paint;
  // Of the button, or of the card, in a theme.
  std::function<ColourPair(const WidgetPaint&)> colours = [](const WidgetPaint& paint) {
    return ColourPair{paint.chrome.ground, paint.chrome.ground};
  };
};

// Black letters on white, so that pixels tell how much of them is covered.
WidgetPaint CoveragePaint() {
  ThemeRecord theme;
  WidgetPaint paint = WidgetPaintOf(theme, false, PlainColours());
  paint.theme.lngTHEMECOLOR = kWhite;
  paint.theme.lngTHEMEPANELFONTCOLOR = paint.theme.lngTHEMEBARFONTCOLOR = kBlack;
  paint.chrome = {kWhite, kWhite, {kWhite, kWhite}, 0};
  paint.readable = false;
  return paint;
}

// Pixels hold blue and red the other way round.
Colour ColourAt(const std::vector<std::uint32_t>& pixels, int at) {
  return static_cast<Colour>(OpaquePixel(static_cast<Colour>(pixels[at] & 0xFFFFFF)) & 0xFFFFFF);
}

class Readable : public ::testing::Test {
 protected:
  Readable() {
    const Paint whole = [this](Surface& surface, const WidgetPaint& paint, const ColourPair&) {
      PaintFrame(ui_, surface, {frame_, paint, L"Stopwatch", L'W', L"Set to 00:02:00", 96});
    };
    kinds_ = {{"title", frame_.title_text, false, whole},
              {"strip", frame_.status_text, false, whole},
              {"small", kBox, false, Text(13)},
              {"large", kBox, true, Text(40)},
              {"card", kBox, false, Text(13),
               [](const WidgetPaint& paint) { return CardColours(paint, PlainColours()); }}};
    for (const ButtonLook look : {ButtonLook::kNormal, ButtonLook::kHover, ButtonLook::kPressed}) {
      const auto on_bar = [look](bool closes) {
        return [=](const WidgetPaint& paint) {
          return BarButtonColours(paint, look, closes, PlainColours());
        };
      };
      const bool closes = look != ButtonLook::kNormal;
      kinds_.push_back({"bar button", kBox, false, Button(true, 17), on_bar(false)});
      if (closes) kinds_.push_back({"close button", kBox, false, Button(true, 17), on_bar(true)});
      kinds_.push_back({"button", kBox, false, Button(false, 17), [look](const WidgetPaint& paint) {
                          return ButtonColours(paint, look, PlainColours());
                        }});
    }
  }

  Paint Text(int height) {
    return [this, height](Surface& surface, const WidgetPaint& paint, const ColourPair& colours) {
      FillRectangle(surface.dc(), kBox, colours.first);
      TextStyle style = PanelTextStyle(paint, height, 96);
      style.ground = colours.first;
      PaintText(ui_, surface, kBox, L"H7", style);
    };
  }

  Paint Button(bool on_bar, int height) {
    return [=, this](Surface& surface, const WidgetPaint& paint, const ColourPair& colours) {
      FillRectangle(surface.dc(), kBox, colours.first);
      const TextButton button{1, nullptr, L'H', on_bar, false};
      PaintTextButton(ui_, {button, surface, kBox, ButtonLook::kNormal, colours, false, true},
                      paint, height, 96);
    };
  }

  std::vector<std::uint32_t> Pixels(const Kind& kind, const WidgetPaint& paint,
                                    const ColourPair& colours) {
    Surface surface(kSize);
    kind.paint(surface, paint, colours);
    return {surface.pixels().begin(), surface.pixels().end()};
  }

  // The pixels of a kind's letters, each with the bare ones around it.
  std::vector<std::vector<int>> LettersOf(const Kind& kind) {
    const auto mask = Pixels(kind, CoveragePaint(), {kWhite, kWhite});
    const auto covered = [&](int at) { return 255 - (mask[at] >> 8 & 0xFF); };
    std::vector<std::vector<int>> letters;
    for (int y = kind.box.top + kAround; y < kind.box.bottom - kAround; ++y) {
      for (int x = kind.box.left + kAround; x < kind.box.right - kAround; ++x) {
        const int at = y * kSize.width + x;
        if (covered(at) < kLetter) continue;
        letters.push_back({at});
        for (int dy = -kAround; dy <= kAround; ++dy) {
          for (int dx = -kAround; dx <= kAround; ++dx) {
            const int beside = at + dy * kSize.width + dx;
            if (covered(beside) == 0) letters.back().push_back(beside);
          }
        }
      }
    }
    return letters;
  }

  // The contrast with what lies around it that half of the letters' pixels have at the least.
  double Contrast(const Kind& kind, const std::vector<std::vector<int>>& letters,
                  const WidgetPaint& paint) {
    const auto seen = Pixels(kind, paint, kind.colours(paint));
    std::vector<double> best;
    for (const std::vector<int>& letter : letters) {
      best.push_back(1);
      for (const int beside : letter) {
        best.back() = std::max(
            best.back(), ContrastRatio(ColourAt(seen, letter.front()), ColourAt(seen, beside)));
      }
    }
    if (best.empty()) return 0;
    std::ranges::nth_element(best, best.begin() + static_cast<std::ptrdiff_t>(best.size()) / 2);
    return best[best.size() / 2];
  }

  static constexpr Rect kBox{10, 20, 170, 80};
  Ui ui_{::GetModuleHandleW(nullptr), {}, {}};
  FrameLayout frame_ = LayOutFrame(kSize, 96);
  std::vector<Kind> kinds_;
};

TEST_F(Readable, EveryTextInEveryPreset) {
  test::MemoryFiles files;
  std::vector<std::vector<std::vector<int>>> letters;
  for (const Kind& kind : kinds_) letters.push_back(LettersOf(kind));
  int presets = 0;
  for (const std::wstring_view style : kStyleFolders) {
    const std::wstring folder = StyleFolderPath(L"C:", style);
    files.CreateFolder(folder);
    GeneratePresets(files, folder, style, PlainColours());
    for (const std::wstring& file : files.FileNames(folder, kPresetEnding)) {
      ThemeRecord theme;
      LoadPreset(files, folder, file.substr(0, file.size() - kPresetEnding.size()), theme);
      const WidgetPaint paint = WidgetPaintOf(theme, false, PlainColours());
      for (std::size_t i = 0; i < kinds_.size(); ++i) {
        const Kind& kind = kinds_[i];
        EXPECT_GE(Contrast(kind, letters[i], paint), kind.large ? 3 : 4.5)
            << kind.name << " in " << Utf8FromWide(style) << ' ' << Utf8FromWide(file);
      }
      ++presets;
    }
  }
  EXPECT_EQ(presets, 140);
}

}  // namespace
}  // namespace varnel
