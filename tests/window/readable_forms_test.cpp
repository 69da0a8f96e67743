// Whether what the widgets paint themselves can be read: keys, tiles, lists, strips and the month's
// figures in every preset that the program makes.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/text.h"
#include "core/manager_form.h"
#include "frame/frame_settings.h"
#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/forms.h"
#include "tests/rig/picture.h"
#include "tests/support/bmp_samples.h"
#include "tests/support/fake_program.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_settings.h"
#include "theme/contrast.h"
#include "theme/preset.h"
#include "theme/preset_generator.h"
#include "theme/system_colours_win.h"
#include "widgets/boards/calendar_painter_win.h"
#include "widgets/boards/whiteboard_form.h"
#include "widgets/calculator/calculator_form.h"
#include "widgets/notes/notes_form.h"
#include "win/system/com.h"
#include "win/system/local_time.h"
#include "win/system/sound.h"

namespace varnel {
namespace {

constexpr int kEdge = 3;         // pixels that belong to a control's outline
constexpr double kLetter = 0.9;  // of the greatest distance from the ground: a letter's own colour
constexpr double kGround = 0.4;  // below: more ground than letter
constexpr int kLeastDistance = 60;
constexpr std::size_t kEnoughPixels = 40;  // of one part
constexpr std::size_t kFewPixels = 4;      // fewer are no text

// The pixels of a surface or of the screen.
class Pixels {
 public:
  explicit Pixels(const rig::Picture& picture)
      : size_(picture.size()),
        at_([picture](Point at) { return static_cast<Colour>(picture.At(at)); }) {}
  explicit Pixels(Surface& surface)
      : size_(surface.size()),
        at_([pixels = std::vector(surface.pixels().begin(), surface.pixels().end()),
             width = surface.size().width](Point at) {
          const std::uint32_t pixel = pixels[static_cast<std::size_t>(at.y * width + at.x)];
          return static_cast<Colour>(RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF));
        }) {}

  Colour At(Point at) const { return at_(at); }
  bool Has(Point at) const {
    return at.x >= 0 && at.y >= 0 && at.x < size_.width && at.y < size_.height;
  }

 private:
  Size size_;
  std::function<Colour(Point at)> at_;
};

// A pixel of a letter with the bare ones around it.
struct LetterPixel {
  Point at;
  std::vector<Point> beside;
};

// One text, or several that are painted alike.
struct Part {
  std::string name;
  Rect box;
  bool large = false;
  std::vector<LetterPixel> letters = {};
};

// Finds the letters in a picture of the part that has no halos.
void FindLetters(Part& part, const Pixels& plain) {
  std::map<Colour, int> counts;
  const auto each = [&](const std::function<void(Point)>& work) {
    for (int y = part.box.top; y < part.box.bottom; ++y) {
      for (int x = part.box.left; x < part.box.right; ++x) {
        if (plain.Has({x, y})) work({x, y});
      }
    }
  };
  each([&](Point at) { ++counts[plain.At(at)]; });
  if (counts.empty()) return;
  const Colour ground =
      std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; })->first;
  // As letters are smoothed: by the colours' numbers, not by how bright they are.
  const auto distance = [&](Point at) {
    const Channels one = ChannelsOf(plain.At(at));
    const Channels other = ChannelsOf(ground);
    return std::abs(one.red - other.red) + std::abs(one.green - other.green) +
           std::abs(one.blue - other.blue);
  };
  int most = 0;
  each([&](Point at) { most = std::max(most, distance(at)); });
  if (most < kLeastDistance) return;
  std::vector<Point> letters;
  each([&](Point at) {
    if (distance(at) >= kLetter * most) letters.push_back(at);
  });
  const std::size_t step = letters.size() / kEnoughPixels + 1;
  for (std::size_t i = 0; i < letters.size(); i += step) {
    part.letters.push_back({letters[i], {}});
    for (int dy = -2; dy <= 2; ++dy) {
      for (int dx = -2; dx <= 2; ++dx) {
        const Point beside{letters[i].x + dx, letters[i].y + dy};
        if (plain.Has(beside) && distance(beside) <= kGround * most) {
          part.letters.back().beside.push_back(beside);
        }
      }
    }
  }
}

// The contrast with what lies around it that half of the letters' pixels have at the least.
double Contrast(const Part& part, const Pixels& seen) {
  std::vector<double> best;
  for (const LetterPixel& letter : part.letters) {
    best.push_back(1);
    for (const Point& beside : letter.beside) {
      best.back() = std::max(best.back(), ContrastRatio(seen.At(letter.at), seen.At(beside)));
    }
  }
  if (best.empty()) return 0;
  std::ranges::nth_element(best, best.begin() + static_cast<std::ptrdiff_t>(best.size() / 2));
  return best[best.size() / 2];
}

// Black on white, where letters are found most easily.
ThemeRecord PlainTheme() {
  ThemeRecord theme;
  theme.lngTHEMECOLOR = kWhite;
  theme.lngTHEMEPANELFONTCOLOR = theme.lngTHEMEBARFONTCOLOR = kBlack;
  return theme;
}

class Host : public WidgetHost {
 public:
  bool Available(int) const override { return true; }
  bool LoadWidget(int) override { return true; }
  bool MayClose(int) override { return true; }
  void UnloadWidget(int) override {}
  void ShowWidget(int, bool) override {}
  Sight SightOfWidget(int index) const override {
    return index == 1 ? Sight::kMinimised : Sight::kShown;
  }
  void BringToFront() override {}
  void ArrangeAll(WidgetForm&) override {}
};

class ReadableForms : public ::testing::Test {
 protected:
  // Calls `look` with the name and the theme of every preset; there are 140.
  static void ForEachPreset(
      const std::function<void(const std::string&, const ThemeRecord&)>& look) {
    test::MemoryFiles files;
    int presets = 0;
    for (const std::wstring_view style : kStyleFolders) {
      const std::wstring folder = StyleFolderPath(L"C:", style);
      files.CreateFolder(folder);
      GeneratePresets(files, folder, style, PlainColours());
      for (const std::wstring& file : files.FileNames(folder, kPresetEnding)) {
        ThemeRecord theme;
        LoadPreset(files, folder, file.substr(0, file.size() - kPresetEnding.size()), theme);
        look(Utf8FromWide(style) + " " + Utf8FromWide(file), theme);
        ++presets;
      }
    }
    EXPECT_EQ(presets, 140);
  }

  static void Check(const std::vector<Part>& parts, const Pixels& seen, const std::string& preset) {
    for (const Part& part : parts) {
      EXPECT_GE(Contrast(part, seen), part.large ? 3 : 4.5) << part.name << " in " << preset;
    }
  }

  // Brings the widget to the size and looks at the texts of its controls, but for those whose ids
  // are `left_out`, in every preset.
  void CheckForm(WidgetForm& form, Size size, std::size_t least_parts,
                 const std::function<bool(int id)>& left_out) {
    ::SetWindowPos(form.handle(), HWND_TOPMOST, 20, 20, size.width, size.height, 0);
    settings_.Write(kMakeTextReadable, L"0");
    const Pixels plain = Paint(form, PlainTheme());
    settings_.Write(kMakeTextReadable, L"1");
    std::vector<Part> parts = PartsOf(form, left_out);
    for (Part& part : parts) FindLetters(part, plain);
    std::erase_if(parts, [](const Part& part) { return part.letters.size() < kFewPixels; });
    EXPECT_GE(parts.size(), least_parts);
    ForEachPreset([&](const std::string& preset, const ThemeRecord& theme) {
      Check(parts, Paint(form, theme), preset);
    });
  }

  Pixels Paint(WidgetForm& form, const ThemeRecord& theme) {
    form.theme() = theme;
    form.ApplyChrome();
    form.Form_Resize();
    form.WidgetRefresh();
    return Pixels(rig::PictureOf(form.handle()));
  }

  static std::vector<Part> PartsOf(const WidgetForm& form,
                                   const std::function<bool(int id)>& left_out) {
    const Rect window = rig::RectOf(form.handle());
    std::vector<Part> parts;
    const auto add = [&](HWND control, const Rect& box) {
      const Rect own = Inset(box, kEdge);
      parts.push_back({"control " + std::to_string(::GetDlgCtrlID(control)),
                       {own.left - window.left, own.top - window.top, own.right - window.left,
                        own.bottom - window.top},
                       ::GetDlgCtrlID(control) == lbl01234567890});
    };
    for (HWND control : rig::ChildrenOf(form.handle())) {
      if (!rig::IsShown(control) || !::IsWindowEnabled(control) ||
          ::GetParent(control) != form.handle() || left_out(::GetDlgCtrlID(control))) {
        continue;
      }
      const Rect box = rig::RectOf(control);
      const int rows = rig::ClassOf(control) == WC_LISTVIEWW ? ListView_GetItemCount(control) : 0;
      if (rows == 0) add(control, box);
      for (int row = 0; row < rows; ++row) {
        RECT bounds = {};
        ListView_GetItemRect(control, row, &bounds, LVIR_BOUNDS);
        const int top = box.top + static_cast<int>(bounds.top);
        const int bottom = box.top + static_cast<int>(bounds.bottom);
        if (bottom <= box.bottom) add(control, {box.left, top, box.right, bottom});
      }
    }
    return parts;
  }

  ComApartment apartment_;
  Ui ui_{::GetModuleHandleW(nullptr), {}, {}};
  test::MemorySettings settings_;
  test::MemoryFiles files_;
  SystemClock clock_;
  SystemTimeFormatter formatter_;
  UserSystemColours colours_;
  FormRegistry forms_;
  test::FakeProgram program_;
  Sound sound_{nullptr};
  Services services_{ui_,      settings_, files_,   clock_, formatter_,
                     colours_, forms_,    program_, sound_, L"C:\\"};
  PrintDesk printing_{services_};
};

TEST_F(ReadableForms, TilesOfTheManager) {
  Host host;
  ManagerForm manager(services_, host);
  WidgetForm& form = manager;
  ASSERT_TRUE(form.Load());
  manager.WidgetOpen(0);
  manager.WidgetOpen(1);
  form.Show(true);
  CheckForm(manager, {393, 231}, 8, [](int id) { return id < lblNUMBER; });
}

TEST_F(ReadableForms, KeysAndLogOfTheCalculator) {
  files_.CreateFolder(L"C:\\");
  CalculatorForm calculator(services_, *WidgetAt(1), 1);
  ASSERT_TRUE(calculator.Load());
  calculator.Show(true);
  for (int sum = 1; sum < 4; ++sum) {
    for (const int key : {lblNUMBER + sum, +lblADD, lblNUMBER + 2, +lblEQUALS}) {
      ::SendDlgItemMessageW(calculator.handle(), key, BM_CLICK, 0, 0);
    }
  }
  CheckForm(calculator, {420, 300}, 25, [](int) { return false; });
}

TEST_F(ReadableForms, ListAndToolsOfTheWhiteboard) {
  const std::wstring folder = L"C:\\wboard\\";
  files_.CreateFolder(folder);
  for (const wchar_t* name : {L"Garden.bmp", L"Plan.bmp"}) {
    files_.Replace(folder + name, test::OldestBmp());
  }
  BoardLink link(services_);
  WhiteboardForm whiteboard(services_, *WidgetAt(6), 6, link, printing_);
  ASSERT_TRUE(whiteboard.Load());
  whiteboard.Show(true);
  CheckForm(whiteboard, {560, 330}, 6, [](int id) {
    const bool pen = id >= cmdPEN && id <= cmdPENS && id != cmdPEN + kEraser;
    return pen || id == picMAINBOARD;
  });
  whiteboard.Unload();
}

TEST_F(ReadableForms, ListToolsAndStripOfTheNotes) {
  const std::wstring folder = L"C:\\tavrin\\";
  files_.CreateFolder(folder);
  for (const wchar_t* name : {L"Shopping.txt", L"Travel.rtf"})
    files_.Replace(folder + name, "milk");
  NotesLink link(services_);
  SpellService spelling(services_);
  NotesForm notes(services_, *WidgetAt(3), 3, link, spelling, printing_);
  ASSERT_TRUE(notes.Load());
  notes.Show(true);
  ::SendDlgItemMessageW(notes.handle(), lablTOOLSINS + int{kToolFind}, BM_CLICK, 0, 0);
  // The hint in the empty field is the system's.
  CheckForm(notes, {620, 360}, 20, [](int id) { return id == txtSEARCHNOTES; });
  notes.Unload();
}

TEST_F(ReadableForms, FiguresOfAMonth) {
  const Size size{700, 500};
  const CalendarGrid grid = LayOutCalendarGrid(size, 96);
  MonthGrid month{{2026, 9}, {}, {}, {}, {}, {}, 9};
  month.days = GridOf(month.month, 1);
  month.names.fill(L"Monday");
  month.brief_names.fill(L"Mon");
  month.weeks = {36, 37, 38, 39, 40, 41};
  month.holidays[16] = month.holidays[34] = L"Feast";
  std::vector<Part> parts;
  for (std::size_t i = 0; i < grid.cells.size(); ++i) {
    const Rect number = grid.NumberBox(i);
    // Beside a disc are pixels that are no letters.
    const int cut = static_cast<int>(i) == month.today ? number.width() / 4 : 0;
    parts.push_back({"day " + std::to_string(i), Inset(number, cut)});
    if (!month.holidays[i].empty()) parts.push_back({"holiday", grid.HolidayBox(i)});
  }
  for (int i = 0; i < kWeekDays; ++i) parts.push_back({"name", Inset(grid.NameBox(i), 2)});
  for (int i = 0; i < kGridWeeks; ++i) parts.push_back({"week", Inset(grid.WeekBox(i), 2)});
  const auto paint = [&](ThemeRecord theme) {
    Surface surface(size);
    PaintMonthGrid(ui_, surface, grid, month, WidgetPaintOf(theme, false, PlainColours()));
    return Pixels(surface);
  };
  const Pixels plain = paint(PlainTheme());
  for (Part& part : parts) FindLetters(part, plain);
  ForEachPreset([&](const std::string& preset, const ThemeRecord& theme) {
    Check(parts, paint(theme), preset);
  });
}

}  // namespace
}  // namespace varnel
