// What is shown in pictures: the program's windows in the states that users see them in.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/rig/forms.h"

namespace varnel::shots {

// An address where nobody answers.
inline constexpr wchar_t kNowhere[] = L"http://127.0.0.1:9/";

// A setting that stands in the registry before the program starts.
struct StoredText {
  std::wstring section;
  std::wstring name;
  std::wstring value;
};

// Brings the program into the state; `form` is the subject's widget, or the manager.
using Preparation = std::function<void(const rig::Program& program, HWND form)>;

// Which looks a subject is shown in, beside the default theme at 100 %.
enum Looks { kPlain = 0, kDpis = 1, kFewPresets = 2, kManyPresets = 4 };

// What the picture shows.
enum class Part {
  kWidget,   // the widget, in three sizes
  kGallery,  // the widget, in one size and one theme
  kForm,     // the form named, as it comes
  kDesktop,  // the whole screen
};

inline constexpr int kManager = -1;

enum WidgetNumber {
  kClock,
  kCalculator,
  kCalendar,
  kNotes,
  kStopwatch,
  kCountdown,
  kWhiteboard,
  kWeather
};

struct Subject {
  std::wstring name;  // begins the names of its pictures
  int widget;         // by its index: it is open; or kManager
  int looks;
  std::vector<StoredText> settings{};
  Preparation prepare{};
  Part part = Part::kWidget;
  std::wstring form{};  // for kForm; for kGallery the preset, as below, or empty
  // What lies in the program's folder before it starts.
  std::function<void(const std::wstring& program_folder)> plant{};
};

const std::vector<Subject>& Subjects();

// "STYLE\NAME" of presets that differ much from each other.
extern const std::vector<std::wstring> kFewPresetNames;
extern const std::vector<std::wstring> kManyPresetNames;

}  // namespace varnel::shots
