// press FORM CONTROL presses the button with that number on the open form of that class, as a key
// would. Exits with 1 when there is no such button.
#include <windows.h>

#include <cstdlib>

int wmain(int count, wchar_t** words) {
  if (count != 3) return 2;
  HWND form = ::FindWindowW(words[1], nullptr);
  HWND button = form ? ::GetDlgItem(form, _wtoi(words[2])) : nullptr;
  if (!button) return 1;
  ::SendMessageW(button, BM_CLICK, 0, 0);
  return 0;
}
