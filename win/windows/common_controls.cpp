#include "win/windows/common_controls.h"

#include <commctrl.h>

#include "win/system/late_function.h"

namespace varnel {
namespace {

constexpr wchar_t kLibrary[] = L"comctl32.dll";
constexpr WORD kManifest = 2;     // the resource that names the newer version
constexpr int kMorePictures = 8;  // room is made for so many at a time

}  // namespace

void UseThemedControls() {
  ACTCTXW description = {};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  description.hModule = ::GetModuleHandleW(nullptr);
  description.lpResourceName = MAKEINTRESOURCEW(kManifest);
  HANDLE context = ::CreateActCtxW(&description);
  ULONG_PTR cookie = 0;
  if (context != INVALID_HANDLE_VALUE) ::ActivateActCtx(context, &cookie);
}

bool LoadCommonControls(DWORD classes) {
  auto* load =
      LateFunction<BOOL WINAPI(const INITCOMMONCONTROLSEX*)>(kLibrary, "InitCommonControlsEx");
  const INITCOMMONCONTROLSEX request{sizeof request, classes};
  return load && load(&request);
}

void ResetPictures(HWND list_view, int set, Size size) {
  auto* create =
      LateFunction<HIMAGELIST WINAPI(int, int, UINT, int, int)>(kLibrary, "ImageList_Create");
  auto* destroy = LateFunction<BOOL WINAPI(HIMAGELIST)>(kLibrary, "ImageList_Destroy");
  if (!create || !destroy) return;
  const bool empty = size.width <= 0 || size.height <= 0;
  HIMAGELIST pictures =
      empty ? nullptr : create(size.width, size.height, ILC_COLOR32, 0, kMorePictures);
  if (HIMAGELIST former = ListView_SetImageList(list_view, pictures, set)) destroy(former);
}

int AddPicture(HWND list_view, int set, HBITMAP bitmap) {
  auto* add = LateFunction<int WINAPI(HIMAGELIST, HBITMAP, HBITMAP)>(kLibrary, "ImageList_Add");
  return add ? add(ListView_GetImageList(list_view, set), bitmap, nullptr) : -1;
}

}  // namespace varnel
