#include "tests/rig/reader.h"

#include <oleacc.h>

#include "win/system/com.h"
#include "win/system/late_function.h"

namespace varnel::rig {
namespace {

ComPointer<IAccessible> ObjectOf(HWND window) {
  ComPointer<IAccessible> object;
  auto* find = LateFunction<HRESULT WINAPI(HWND, DWORD, REFIID, void**)>(
      L"oleacc.dll", "AccessibleObjectFromWindow");
  if (find) find(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, object.ReceiveAny());
  return object;
}

VARIANT Number(int part) {
  VARIANT number = {};
  number.vt = VT_I4;
  number.lVal = part;
  return number;
}

std::wstring Taken(BSTR text) {
  const std::wstring taken(text ? text : L"", ::SysStringLen(text));
  ::SysFreeString(text);
  return taken;
}

}  // namespace

std::optional<Heard> Hear(HWND window, int part) {
  const auto object = ObjectOf(window);
  if (!object) return {};
  const VARIANT which = Number(part);
  Heard heard;
  VARIANT role = {};
  VARIANT state = {};
  if (FAILED(object->get_accRole(which, &role))) return {};
  object->get_accState(which, &state);
  heard.role = role.lVal;
  heard.state = state.lVal;
  BSTR text = nullptr;
  if (SUCCEEDED(object->get_accName(which, &text))) heard.name = Taken(text);
  text = nullptr;
  if (SUCCEEDED(object->get_accDescription(which, &text))) heard.description = Taken(text);
  text = nullptr;
  if (SUCCEEDED(object->get_accDefaultAction(which, &text))) heard.action = Taken(text);
  long left = 0, top = 0, width = 0, height = 0;
  if (SUCCEEDED(object->accLocation(&left, &top, &width, &height, which))) {
    heard.place = RectAt({static_cast<int>(left), static_cast<int>(top)},
                         {static_cast<int>(width), static_cast<int>(height)});
  }
  return heard;
}

int HeardParts(HWND window) {
  const auto object = ObjectOf(window);
  long count = 0;
  if (object) object->get_accChildCount(&count);
  return static_cast<int>(count);
}

bool ActOn(HWND window) {
  const auto object = ObjectOf(window);
  return object && object->accDoDefaultAction(Number(0)) == S_OK;
}

}  // namespace varnel::rig
