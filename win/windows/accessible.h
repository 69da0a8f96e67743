// What a window that draws itself tells programs that read the screen aloud.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "base/geometry.h"

namespace varnel {

struct AccessiblePart {
  std::wstring name;
  long role = 0;   // ROLE_SYSTEM_... of the platform
  long state = 0;  // STATE_SYSTEM_..., beside what the platform knows of the window itself
  std::wstring description = {};  // what there is to say beside the name
  std::wstring action = {};  // what the default action does, as "Press"; empty where there is none
  Rect place = {};           // of a part, in pixels of the window; the window's own is known
};

// What the window is, and what is drawn in it. Every function is asked at the moment that somebody
// wants to know; those but `whole` may be empty.
struct AccessibleSource {
  std::function<AccessiblePart()> whole;
  std::function<int()> count;  // of the parts
  std::function<AccessiblePart(int index)> part;
  std::function<void()> act;  // the default action of the whole
};

// Belongs to one window. Nothing is made before another program asks; what such a program keeps
// outlives this object and then answers with an error. The thread has to be in a ComApartment.
class Accessible {
 public:
  explicit Accessible(AccessibleSource source);
  Accessible(const Accessible&) = delete;
  Accessible& operator=(const Accessible&) = delete;
  ~Accessible();

  // Answers WM_GETOBJECT; nothing for other messages, and where the system is to answer.
  std::optional<LRESULT> OnMessage(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

 private:
  std::shared_ptr<AccessibleSource> source_;
};

}  // namespace varnel
