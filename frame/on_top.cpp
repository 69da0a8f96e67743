#include "frame/on_top.h"

#include <string>

#include "frame/frame_settings.h"

namespace varnel {
namespace {

std::wstring SectionOf(std::wstring_view form_name) {
  return std::wstring(form_name) + L"\\Window";
}

}  // namespace

bool StaysOnTop(const Settings& settings, std::wstring_view form_name) {
  const std::wstring section = SectionOf(form_name);
  return ReadFlag(settings, {section, kOnTop.name, ReadFlag(settings, kOnTop) ? L"1" : L"0"});
}

void ChooseOnTop(Settings& settings, std::wstring_view form_name, bool on) {
  settings.Write(SectionOf(form_name), kOnTop.name, on ? L"1" : L"0");
}

void ForgetOnTop(Settings& settings, std::wstring_view form_name) {
  settings.Write(SectionOf(form_name), kOnTop.name, L"");
}

}  // namespace varnel
