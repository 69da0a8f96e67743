// shots [WORD...] starts the program that VARNEL_EXE names and puts pictures of its windows, as BMP
// files, into the folder that VARNEL_ARTIFACTS names: of every subject, or of those whose names
// begin with one of the words. "presets" stands for the clock in every generated preset.
#include <algorithm>
#include <cstdio>
#include <span>

#include "base/text.h"
#include "core/core_settings.h"
#include "core/widget_index.h"
#include "frame/sizes.h"
#include "frame/web_addresses.h"
#include "tests/rig/files.h"
#include "tests/rig/http_server.h"
#include "tests/rig/input.h"
#include "tests/rig/picture.h"
#include "tests/rig/screen_dpi.h"
#include "tests/support/weather_samples.h"
#include "theme/preset.h"
#include "theme/preset_generator.h"
#include "theme/system_colours_win.h"
#include "theme/theme_store.h"
#include "tools/shots/subjects.h"
#include "widgets/weather/weather_settings.h"
#include "win/files/disk_files.h"

namespace varnel::shots {
namespace {

constexpr Point kCorner = {20, 20};
constexpr Size kSizes[] = {kFixedSizes[2], {5900, 3471}, kFixedSizes[0]};  // twips
constexpr Size kPresetSize = {3600, 2400};
constexpr Size kGallerySize = {6600, 4500};

// How a subject is shown. An empty preset stands for the theme of a widget that never had one.
struct Look {
  int dpi = kDefaultDpi;
  std::wstring preset;  // "STYLE\NAME"
};

std::vector<Look> LooksOf(const Subject& subject) {
  if (subject.part == Part::kGallery) return {{kDefaultDpi, subject.form}};
  std::vector<Look> looks = {{}};
  if (subject.looks & kDpis) looks.insert(looks.end(), {{144, L""}, {192, L""}});
  if (subject.looks & (kFewPresets | kManyPresets)) {
    const bool many = (subject.looks & kManyPresets) != 0;
    for (const std::wstring& name : many ? kManyPresetNames : kFewPresetNames) {
      looks.push_back({kDefaultDpi, name});
    }
  }
  return looks;
}

// "-150" or "-Neon-Cyan"; empty for the default.
std::wstring Suffix(const Look& look) {
  std::wstring suffix = look.preset.empty() ? L"" : L"-" + look.preset;
  std::ranges::replace(suffix, L'\\', L'-');
  return look.dpi == kDefaultDpi ? suffix : L"-" + std::to_wstring(look.dpi * 100 / kDefaultDpi);
}

// The window as it has come to rest, as far as it lies on the screen.
rig::Picture PictureAtRest(HWND window) {
  // What it was told to do is done, and painted, once it answers.
  rig::Send(window, WM_NULL);
  ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  rig::StillPictureOf(window);
  const Rect whole = rig::RectOf(window);
  return rig::Picture({std::max(whole.left, 0), std::max(whole.top, 0),
                       std::min(whole.right, ::GetSystemMetrics(SM_CXSCREEN)),
                       std::min(whole.bottom, ::GetSystemMetrics(SM_CYSCREEN))});
}

class Studio {
 public:
  explicit Studio(std::wstring folder) : folder_(std::move(folder)) {
    weather_.Answer(test::LiveAnswer());
    // The first start of all makes the presets.
    Start({L"", kManager, kPlain}, {});
    program_.Kill();
  }

  void Take(const Subject& subject) {
    for (const Look& look : LooksOf(subject)) {
      const rig::ScreenDpi dpi(look.dpi);
      if (HWND form = Start(subject, look)) TakeOne(subject, look, form);
      program_.Kill();
      rig::ResetInput();
    }
  }

  // The clock in every preset that the program makes for itself.
  void TakePresets() {
    const Subject clock{L"presets", 0, kPlain};
    for (const std::wstring_view style : kStyleFolders) {
      for (const std::wstring& file :
           files_.FileNames(StyleFolderPath(root_.folder(), style), kPresetEnding)) {
        const std::wstring name = file.substr(0, file.size() - kPresetEnding.size());
        const Look look{kDefaultDpi, std::wstring(style) + L"\\" + name};
        if (HWND form = Start(clock, look)) {
          Resize(form, kPresetSize, look.dpi);
          Save(PictureAtRest(form), L"presets" + Suffix(look));
        }
        program_.Kill();
      }
    }
  }

 private:
  // Starts the program for the subject and gives its widget, ready for its pictures.
  HWND Start(const Subject& subject, const Look& look) {
    const rig::Registry& settings = root_.settings();
    settings.RemoveAll();
    // Nothing listens there, so nothing is asked outside this machine.
    settings.SetText(std::wstring(kWebAddress.section), std::wstring(kWebAddress.name), kNowhere);
    settings.SetText(std::wstring(kLiveWeatherAddress.section),
                     std::wstring(kLiveWeatherAddress.name), weather_.address());
    const FormEntry* form = &kManagerForm;
    if (const WidgetEntry* widget = WidgetAt(subject.widget)) {
      form = widget;
      const Setting& flag = widget->start_load;
      settings.SetText(std::wstring(flag.section), std::wstring(flag.name), L"True");
      settings.SetText(std::wstring(kMinimizeOnStart.section), std::wstring(kMinimizeOnStart.name),
                       L"1");
    }
    for (const StoredText& text : subject.settings) {
      settings.SetText(text.section, text.name, text.value);
    }
    if (!look.preset.empty()) StorePreset(form->form_name, look.preset);
    if (subject.plant) subject.plant(root_.folder());
    if (!program_.Start()) return nullptr;
    HWND window = rig::WaitForForm(program_, form->form_name);
    if (!window) Complain(subject.name + L": no window " + std::wstring(form->form_name));
    return window;
  }

  void StorePreset(std::wstring_view form, const std::wstring& preset) {
    const std::size_t cut = preset.find(L'\\');
    ThemeRecord theme;
    LoadPreset(files_, StyleFolderPath(root_.folder(), preset.substr(0, cut)),
               preset.substr(cut + 1), theme);
    for (const ThemeField& field : kThemeFields) {
      root_.settings().SetText(std::wstring(kThemeSection),
                               std::wstring(form).append(L"Theme-").append(field.name),
                               FieldText(theme, field));
    }
  }

  void TakeOne(const Subject& subject, const Look& look, HWND form) {
    if (subject.part == Part::kWidget) {
      TakeSizes(subject, look, form);
      return;
    }
    rig::Activate(form);
    if (subject.part == Part::kGallery) Resize(form, kGallerySize, look.dpi);
    if (subject.prepare) subject.prepare(program_, form);
    if (subject.part == Part::kGallery) {
      // As after a click: the keyboard's place is not shown.
      rig::Send(form, WM_PARENTNOTIFY, WM_LBUTTONDOWN);
      Save(PictureAtRest(form), subject.name);
    } else if (subject.part == Part::kDesktop) {
      PictureAtRest(form);
      Save(rig::PictureOfScreen(), subject.name + Suffix(look));
    } else if (HWND shown = rig::WaitForForm(program_, subject.form)) {
      Save(PictureAtRest(shown), subject.name + Suffix(look));
    } else {
      Complain(subject.name + L": no window " + subject.form);
    }
  }

  void TakeSizes(const Subject& subject, const Look& look, HWND form) {
    rig::Activate(form);
    for (const Size& size : kSizes) {
      Resize(form, size, look.dpi);
      // Once it has a size at which everything can be reached.
      if (&size == kSizes && subject.prepare) subject.prepare(program_, form);
      Save(PictureAtRest(form), subject.name + L"-" + std::to_wstring(size.width) + L"x" +
                                    std::to_wstring(size.height) + Suffix(look));
    }
  }

  static void Resize(HWND form, Size twips, int dpi) {
    ::SetWindowPos(form, nullptr, kCorner.x, kCorner.y, PixelsFromTwips(twips.width, dpi),
                   PixelsFromTwips(twips.height, dpi), SWP_NOZORDER | SWP_NOACTIVATE);
  }

  void Save(const rig::Picture& picture, const std::wstring& name) {
    if (!picture.Save(folder_ + L"\\" + name + L".bmp")) Complain(name + L": not saved");
  }

  static void Complain(const std::wstring& text) {
    std::fprintf(stderr, "shots: %s\n", Utf8FromWide(text).c_str());
  }

  std::wstring folder_;
  DiskFiles files_;
  rig::HttpServer weather_;
  rig::Root root_;
  rig::Program program_{root_};
};

void Run(std::span<wchar_t*> words) {
  const auto wanted = [words](const std::wstring& name) {
    return words.empty() ||
           std::ranges::any_of(words, [&](const wchar_t* word) { return name.starts_with(word); });
  };
  rig::ResetInput();
  // As for a user who works by mouse: the keyboard's place is not shown before a key is used.
  ::SystemParametersInfoW(SPI_SETKEYBOARDPREF, FALSE, nullptr, 0);
  Studio studio(rig::PathFromEnvironment(L"VARNEL_ARTIFACTS"));
  for (const Subject& subject : Subjects()) {
    if (wanted(subject.name)) studio.Take(subject);
  }
  if (wanted(L"presets")) studio.TakePresets();
}

}  // namespace
}  // namespace varnel::shots

int wmain(int count, wchar_t** words) {
  varnel::shots::Run({words + 1, words + count});
  return 0;
}
