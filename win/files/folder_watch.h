// Tells when what a folder holds has changed, whoever changed it.
#pragma once

#include <functional>
#include <string>

#include "win/windows/timer.h"
#include "win/windows/window.h"

namespace varnel {

// Costs nothing while nothing changes. Watches the folder itself, not those within it.
class FolderWatch : private Window {
 public:
  // `on_change` is called from the message loop once no further change has come for a quarter of a
  // second, at the latest two seconds after the first. It is also called when the folder vanishes
  // and when it is there again; until then the watch looks for it every two seconds.
  FolderWatch(Ui& ui, std::function<void()> on_change);
  ~FolderWatch() override;

  // Watches another folder from now on; nothing where it does so already. An empty path watches
  // none.
  void Watch(const std::wstring& folder);

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  static void CALLBACK OnSignal(void* watch, BOOLEAN);
  bool Begin();
  bool Wait();
  void End();
  void OnChange();
  void Settle();
  void LookForFolder();

  std::function<void()> on_change_;
  std::wstring folder_;
  HANDLE changes_ = INVALID_HANDLE_VALUE;  // signalled when something changes
  HANDLE wait_ = nullptr;                  // of a thread of the system for that signal
  WPARAM round_ = 0;                       // of waits; changed only while there is none
  ULONGLONG first_change_ = 0;             // when the settling began, 0 while nothing changed
  Timer settling_;
  Timer looking_;
};

}  // namespace varnel
