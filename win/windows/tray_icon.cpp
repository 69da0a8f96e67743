#include "win/windows/tray_icon.h"

#include <shellapi.h>

#include <utility>

namespace varnel {
namespace {

constexpr std::size_t kTipUnits = 64;  // of the first version's record, its final zero included

}  // namespace

TrayIcon::TrayIcon(HWND owner, UINT message, HICON icon, std::wstring tip)
    : owner_(owner), message_(message), icon_(icon), tip_(std::move(tip)) {}

bool TrayIcon::Add() {
  if (!shown_) shown_ = Tell(NIM_ADD);
  return shown_;
}

void TrayIcon::Remove() {
  if (std::exchange(shown_, false)) Tell(NIM_DELETE);
}

bool TrayIcon::Tell(DWORD request) {
  NOTIFYICONDATAW record = {};
  record.cbSize = NOTIFYICONDATAW_V1_SIZE;
  record.hWnd = owner_;
  record.uID = kId;
  record.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
  record.uCallbackMessage = message_;
  record.hIcon = icon_;
  tip_.copy(record.szTip, kTipUnits - 1);
  return ::Shell_NotifyIconW(request, &record) != FALSE;
}

}  // namespace varnel
