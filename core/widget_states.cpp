#include "core/widget_states.h"

#include <algorithm>

#include "core/core_settings.h"

namespace varnel {
namespace {

constexpr int kHideAll = 1;
constexpr int kShowAll = 2;
constexpr int kHideAllToo = 6;

}  // namespace

WidgetStates::WidgetStates(Settings& settings, WidgetWindows& windows)
    : settings_(settings), windows_(windows) {}

bool WidgetStates::IsOpen(int index) const {
  return WidgetAt(index) != nullptr && open_[index];
}

int WidgetStates::OpenCount() const {
  return static_cast<int>(std::ranges::count(open_, true));
}

void WidgetStates::StartUp() {
  for (int i = 0; i < kWidgetCount; ++i) WidgetCheckOnLoad(i);
  WidgetSel(settings_.Read(kShowOrHide) == kHiddenText ? kHideAll : kShowAll);
}

void WidgetStates::WidgetCheck(int index) {
  if (IsOpen(index)) {
    WidgetClose(index);
  } else {
    WidgetOpen(index);
  }
}

void WidgetStates::WidgetCheckOnLoad(int index) {
  const WidgetEntry* widget = WidgetAt(index);
  if (widget != nullptr && ReadFlag(settings_, widget->start_load) && windows_.Load(index)) {
    SetMark(index, true);
  }
}

void WidgetStates::WidgetOpen(int index) {
  const WidgetEntry* widget = WidgetAt(index);
  if (widget == nullptr || !windows_.Load(index)) return;
  SetMark(index, true);
  WriteFlag(settings_, widget->start_load, true);
  windows_.Show(index, true);
}

void WidgetStates::WidgetClose(int index) {
  const WidgetEntry* widget = WidgetAt(index);
  if (widget == nullptr || (open_[index] && !windows_.MayClose(index))) return;
  WriteFlag(settings_, widget->start_load, false);
  Close(index);
}

void WidgetStates::CloseAll() {
  for (int i = 0; i < kWidgetCount; ++i) {
    if (open_[i] && !windows_.MayClose(i)) return;
  }
  for (int i = 0; i < kWidgetCount; ++i) {
    if (!open_[i]) continue;
    WriteFlag(settings_, kStartLoad[i], false);
    Close(i);
  }
}

void WidgetStates::CloseFromOutside(int index) {
  if (IsOpen(index) && windows_.MayClose(index)) Close(index);
}

void WidgetStates::Close(int index) {
  const bool was_open = open_[index];
  // Marked first: a window may report its own end while it is unloaded.
  SetMark(index, false);
  if (was_open) windows_.Unload(index);
}

void WidgetStates::WidgetSel(int mode) {
  if (mode == kHideAll || mode == kHideAllToo) {
    ShowAll(false);
    settings_.Write(kShowOrHide, kHiddenText);
  } else if (mode == kShowAll) {
    ShowAll(true);
    settings_.Write(kShowOrHide, kShowText);
  }
}

void WidgetStates::SetMark(int index, bool open) {
  open_[index] = open;
  windows_.Mark(index, open);
}

void WidgetStates::ShowAll(bool shown) {
  for (int i = 0; i < kWidgetCount; ++i) {
    if (open_[i]) windows_.Show(i, shown);
  }
}

}  // namespace varnel
