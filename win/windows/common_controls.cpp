#include "win/windows/common_controls.h"

#include <commctrl.h>

#include "win/system/late_function.h"

namespace varnel {

bool LoadCommonControls(DWORD classes) {
  auto* load = LateFunction<BOOL WINAPI(const INITCOMMONCONTROLSEX*)>(L"comctl32.dll",
                                                                      "InitCommonControlsEx");
  const INITCOMMONCONTROLSEX request{sizeof request, classes};
  return load && load(&request);
}

}  // namespace varnel
