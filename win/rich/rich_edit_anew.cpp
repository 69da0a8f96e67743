// Another control in the place of an editor's.
#include <stdexcept>
#include <utility>

#include "win/graphics/system_rect.h"
#include "win/rich/rich_edit.h"
#include "win/windows/window.h"

namespace varnel {
namespace {

constexpr int kOutOfSight = -32000;

}  // namespace

RichEdit::Anew::Anew(RichEdit& edit)
    : edit_(edit),
      former_(edit.handle_),
      caret_(std::exchange(edit.caret_, 0)),
      selection_(std::exchange(edit.last_selection_, {})),
      pictures_(std::exchange(edit.pictures_seen_, 0)) {
  const int zoom = edit.Zoom();
  const LRESULT typography = edit.Send(EM_GETTYPOGRAPHYOPTIONS);
  const LRESULT addresses = edit.Send(EM_GETAUTOURLDETECT);
  const auto style = static_cast<DWORD>(::GetWindowLongPtrW(former_, GWL_STYLE));
  RECT place = {};
  ::GetWindowRect(former_, &place);
  if (!edit.Create(::GetParent(former_), ::GetDlgCtrlID(former_), style, edit.DefaultFormat(),
                   edit.undo_steps_)) {
    PutBack();
    throw std::runtime_error("no second editor");
  }
  ::SetWindowPos(edit.handle_, former_, kOutOfSight, 0, place.right - place.left,
                 place.bottom - place.top, SWP_NOACTIVATE);
  edit.Send(EM_SETTYPOGRAPHYOPTIONS, static_cast<WPARAM>(typography), typography);
  edit.Send(EM_AUTOURLDETECT, static_cast<WPARAM>(addresses));
  if (zoom != edit.Zoom()) edit.SetZoom(zoom);
}

RichEdit::Anew::~Anew() {
  if (former_) PutBack();
}

void RichEdit::Anew::PutBack() {
  ::DestroyWindow(std::exchange(edit_.handle_, former_));
  edit_.caret_ = caret_;
  edit_.last_selection_ = selection_;
  edit_.pictures_seen_ = pictures_;
}

void RichEdit::Anew::Keep() {
  HWND former = std::exchange(former_, nullptr);
  RECT place = {};
  ::GetWindowRect(former, &place);
  ::MapWindowPoints(nullptr, ::GetParent(former), reinterpret_cast<POINT*>(&place), 2);
  const bool visible = (::GetWindowLongPtrW(former, GWL_STYLE) & WS_VISIBLE) != 0;
  PlaceWindow(edit_.handle_, FromSystem(place));
  ::ShowWindow(edit_.handle_, visible ? SW_SHOWNA : SW_HIDE);
  if (::GetFocus() == former) ::SetFocus(edit_.handle_);
  ::DestroyWindow(former);
}

}  // namespace varnel
