#include "frame/command_key.h"

#include <string_view>

#include "base/number_text.h"

namespace varnel {
namespace {

std::wstring CodeText(std::uint16_t code) {
  if (code >= kKeyF1 && code <= kKeyF24) return L"F" + NumberText(code - kKeyF1 + 1);
  switch (code) {
    case kKeyBackspace:
      return L"Backspace";
    case kKeyEnter:
      return L"Enter";
    case kKeyEscape:
      return L"Esc";
    case kKeySpace:
      return L"Space";
    case kKeyPageUp:
      return L"Page Up";
    case kKeyPageDown:
      return L"Page Down";
    case kKeyEnd:
      return L"End";
    case kKeyHome:
      return L"Home";
    case kKeyDelete:
      return L"Del";
    case kKeyPlus:
      return L"=";
    default:
      return std::wstring(1, static_cast<wchar_t>(code));
  }
}

bool MovesOrDeletes(std::uint16_t code) {
  return (code >= kKeyPageUp && code <= kKeyDown) || code == kKeyInsert || code == kKeyDelete ||
         code == kKeyBackspace;
}

}  // namespace

std::wstring KeyText(const CommandKey& key) {
  if (key.code == 0) return {};
  if (key.held == kTyped) return std::wstring(1, static_cast<wchar_t>(key.code));
  std::wstring text;
  if (key.held & kCtrlHeld) text += L"Ctrl+";
  if (key.held & kAltHeld) text += L"Alt+";
  if (key.held & kShiftHeld) text += L"Shift+";
  return text + CodeText(key.code);
}

bool FocusKeeps(Focus focus, const CommandKey& key) {
  if (focus == Focus::kPanel || focus == Focus::kList) return false;
  if (focus == Focus::kRename || key.held == kTyped) return true;
  if (key.held & kAltHeld) return false;
  if (MovesOrDeletes(key.code)) return true;
  if (key.held & kCtrlHeld) {
    constexpr std::wstring_view kOfTexts = L"ACVXYZ";
    return kOfTexts.find(static_cast<wchar_t>(key.code)) != std::wstring_view::npos;
  }
  return key.code != kKeyEscape && (key.code < kKeyF1 || key.code > kKeyF24);
}

bool Reaches(const CommandKey& key, Focus focus) {
  switch (key.place) {
    case KeyPlace::kAnywhere:
      return !FocusKeeps(focus, key);
    case KeyPlace::kList:
      return focus == Focus::kList;
    case KeyPlace::kText:
      return focus == Focus::kText;
    case KeyPlace::kControl:
      break;
  }
  return false;
}

}  // namespace varnel
