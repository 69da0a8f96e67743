#include "win/files/folder_watch.h"

#include <utility>

namespace varnel {
namespace {

constexpr UINT kChanged = WM_APP + 1;
constexpr int kQuietMs = 250;
constexpr int kLongestMs = 2000;
constexpr int kLookMs = 2000;
constexpr DWORD kWhat = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_SIZE |
                        FILE_NOTIFY_CHANGE_LAST_WRITE | FILE_NOTIFY_CHANGE_ATTRIBUTES;

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace

FolderWatch::FolderWatch(Ui& ui, std::function<void()> on_change)
    : Window(ui),
      on_change_(std::move(on_change)),
      settling_(*this, kQuietMs, [this] { Settle(); }),
      looking_(*this, kLookMs, [this] { LookForFolder(); }) {
  Creation creation;
  creation.class_name = L"VarnelFolderWatch";
  creation.parent = HWND_MESSAGE;
  if (!Create(creation)) this->ui().log.Write(L"no window to watch folders with");
}

FolderWatch::~FolderWatch() {
  End();
  Destroy();
}

void FolderWatch::Watch(const std::wstring& folder) {
  if (folder == folder_) return;
  End();
  settling_.Stop();
  looking_.Stop();
  first_change_ = 0;
  folder_ = folder;
  if (!folder_.empty() && !Begin()) looking_.Start();
}

bool FolderWatch::Begin() {
  changes_ = ::FindFirstChangeNotificationW(folder_.c_str(), FALSE, kWhat);
  return changes_ != INVALID_HANDLE_VALUE && Wait();
}

// One wait for one signal: the next begins when the message has been seen, so that a busy folder
// cannot flood the queue.
bool FolderWatch::Wait() {
  ++round_;
  if (::RegisterWaitForSingleObject(&wait_, changes_, OnSignal, this, INFINITE,
                                    WT_EXECUTEONLYONCE | WT_EXECUTEINWAITTHREAD)) {
    return true;
  }
  End();
  return false;
}

void FolderWatch::End() {
  // Comes back when OnSignal no longer runs and will not run again.
  if (wait_) ::UnregisterWaitEx(std::exchange(wait_, nullptr), INVALID_HANDLE_VALUE);
  if (changes_ != INVALID_HANDLE_VALUE) {
    ::FindCloseChangeNotification(std::exchange(changes_, INVALID_HANDLE_VALUE));
  }
}

void CALLBACK FolderWatch::OnSignal(void* watch, BOOLEAN) {
  const auto* self = static_cast<const FolderWatch*>(watch);
  ::PostMessageW(self->handle(), kChanged, self->round_, 0);
}

LRESULT FolderWatch::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message != kChanged) return Window::OnMessage(message, wparam, lparam);
  if (wait_ && wparam == round_) OnChange();  // else it was posted before the watch ended
  return 0;
}

void FolderWatch::OnChange() {
  ::UnregisterWaitEx(std::exchange(wait_, nullptr), INVALID_HANDLE_VALUE);
  if (!::FindNextChangeNotification(changes_) || !Wait()) End();
  if (!first_change_) first_change_ = ::GetTickCount64();
  settling_.Stop();
  settling_.Start();
  if (::GetTickCount64() - first_change_ >= kLongestMs) Settle();
}

void FolderWatch::Settle() {
  settling_.Stop();
  first_change_ = 0;
  // A folder that was deleted vanishes only when nobody holds it any more. What changes between the
  // two watches is seen by whoever looks at the folder now.
  End();
  if (!IsFolder(folder_) || !Begin()) looking_.Start();
  on_change_();
}

void FolderWatch::LookForFolder() {
  if (!IsFolder(folder_) || !Begin()) return;
  looking_.Stop();
  on_change_();
}

}  // namespace varnel
