#include "core/widget_index.h"

#include <algorithm>
#include <iterator>

#include "base/text.h"
#include "core/core_settings.h"

namespace varnel {
namespace {

// The glyphs stand in the font in the order of the widgets, closed ones from E100, open ones from
// E110.
constexpr WidgetEntry Entry(int index, std::wstring_view form_name, std::wstring_view title,
                            std::wstring_view theme_caption, std::wstring_view top_command = {}) {
  return {{form_name, title, theme_caption, static_cast<wchar_t>(0xE100 + index),
           static_cast<wchar_t>(0xE110 + index), top_command},
          index,
          kStartLoad[index]};
}

constexpr WidgetEntry kWidgets[] = {
    Entry(0, L"frmCLKwg", L"Clock", L"Alarm Clock Theme Settings", L"mnuCLOCKTOP"),
    Entry(1, L"frmCLCwg", L"Calculator", L"Calculator Theme Settings", L"mnuCALCTOP"),
    Entry(2, L"frmCALwg", L"Calendar", L"Calendar Theme Settings", L"mnuCALTOP"),
    Entry(3, L"frmNOTwg", L"Notes", L"Notes Theme Settings", L"mnuNOTESTOP"),
    Entry(4, L"frmSTWwg", L"Stopwatch", L"Stopwatch Theme Settings"),
    Entry(5, L"frmCDNwg", L"Countdown", L"Countdown Theme Settings"),
    Entry(6, L"frmWBDwg", L"Whiteboard", L"Whiteboard Theme Settings", L"mnuWBOARDTOP"),
    Entry(7, L"frmWTHwg", L"Weather", L"Weather Theme Settings", L"mnuWEATHERTOP"),
};
static_assert(std::size(kWidgets) == kWidgetCount && std::size(kStartLoad) == kWidgetCount);

}  // namespace

const WidgetEntry* WidgetAt(int index) {
  return index >= 0 && index < kWidgetCount ? &kWidgets[index] : nullptr;
}

const WidgetEntry* WidgetNamed(std::wstring_view form_name) {
  const auto* found = std::ranges::find(kWidgets, form_name, &WidgetEntry::form_name);
  return found == std::end(kWidgets) ? nullptr : found;
}

const WidgetEntry* WidgetTitled(std::wstring_view title) {
  const auto* found = std::ranges::find_if(kWidgets, [title](const WidgetEntry& widget) {
    return EqualsIgnoreCase(widget.title, title);
  });
  return found == std::end(kWidgets) ? nullptr : found;
}

const FormEntry* FormNamed(std::wstring_view form_name) {
  if (form_name == kManagerForm.form_name) return &kManagerForm;
  return WidgetNamed(form_name);
}

}  // namespace varnel
