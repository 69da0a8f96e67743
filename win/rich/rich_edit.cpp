#include "win/rich/rich_edit.h"

#include <commdlg.h>
#include <shellapi.h>

#include <algorithm>
#include <new>
#include <stdexcept>

#include "win/system/clipboard.h"
#include "win/system/late_function.h"

namespace varnel {
namespace {

constexpr LPARAM kNoLimit = 0x7FFFFFFE;

// Nothing may be thrown through the control, so that what is becomes an error.

struct Source {
  std::string_view bytes;
  const RichEdit::GoOn& go_on;
  std::size_t taken = 0;

  bool MayGoOn() const {
    return !go_on || go_on(static_cast<int>(taken * 100 / std::max<std::size_t>(bytes.size(), 1)));
  }
};

DWORD CALLBACK ReadPiece(DWORD_PTR cookie, BYTE* buffer, LONG size, LONG* count) {
  Source& source = *reinterpret_cast<Source*>(cookie);
  try {
    if (!source.MayGoOn()) return ERROR_CANCELLED;
  } catch (const std::exception&) {
    return ERROR_CANCELLED;
  }
  const auto piece = source.bytes.substr(source.taken, static_cast<std::size_t>(size));
  std::ranges::copy(piece, reinterpret_cast<char*>(buffer));
  source.taken += piece.size();
  *count = static_cast<LONG>(piece.size());
  return 0;
}

DWORD CALLBACK WritePiece(DWORD_PTR cookie, BYTE* buffer, LONG size, LONG* count) {
  try {
    reinterpret_cast<std::string*>(cookie)->append(reinterpret_cast<const char*>(buffer),
                                                   static_cast<std::size_t>(size));
  } catch (const std::bad_alloc&) {
    return ERROR_OUTOFMEMORY;
  }
  *count = size;
  return 0;
}

WPARAM StreamScope(RichEdit::Scope scope) {
  return scope == RichEdit::Scope::kSelection ? SFF_SELECTION : 0;
}

CHARRANGE ToSystem(RichRange range) {
  return {range.from, range.to};
}

RichRange FromSystem(const CHARRANGE& range) {
  return {static_cast<int>(range.cpMin), static_cast<int>(range.cpMax)};
}

std::wstring WithSingleLineEnds(std::wstring_view text) {
  std::wstring units;
  units.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool second = text[i] == L'\n' && i > 0 && text[i - 1] == L'\r';
    if (!second) units += text[i] == L'\n' ? L'\r' : text[i];
  }
  return units;
}

bool IsWine() {
  static const bool wine = LateAddress(L"ntdll.dll", "wine_get_version") != nullptr;
  return wine;
}

bool Held(int key) {
  return ::GetKeyState(key) < 0;
}

}  // namespace

RichEdit::~RichEdit() {
  if (handle_) ::DestroyWindow(handle_);
}

bool RichEdit::Create(HWND parent, int id, DWORD style, const CharacterFormat& format,
                      int undo_steps) {
  undo_steps_ = undo_steps;
  if (!::LoadLibraryExW(L"msftedit.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) return false;
  handle_ = ::CreateWindowExW(
      0, MSFTEDIT_CLASS, L"",
      WS_CHILD | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | ES_NOHIDESEL | style, 0, 0, 0, 0,
      parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  if (!hook_.Attach(handle_)) return false;
  Send(EM_EXLIMITTEXT, 0, kNoLimit);
  Send(EM_SETUNDOLIMIT, static_cast<WPARAM>(undo_steps));
  // The control's own first format is a bold system font on some systems.
  SetDefaultFormat(format);
  SetFormat(format, Scope::kAll);
  const ComPointer<IRichEditOleCallback> guard = MakeRichGuard(events_.may_drop);
  Send(EM_SETOLECALLBACK, 0, reinterpret_cast<LPARAM>(guard.get()));
  if (events_.on_files) ::DragAcceptFiles(handle_, TRUE);
  Send(EM_EMPTYUNDOBUFFER);
  Send(EM_SETEVENTMASK, 0, ENM_CHANGE | ENM_SELCHANGE | ENM_LINK);
  return true;
}

// --- what the control tells, and what is kept from it

LRESULT RichEdit::OnNotify(const NMHDR& header) {
  if (header.code == EN_SELCHANGE) {
    const RichRange now = FromSystem(reinterpret_cast<const SELCHANGE&>(header).chrg);
    caret_ = now.to == last_selection_.to && now.from != last_selection_.from ? now.from : now.to;
    last_selection_ = now;
    if (quiet_ == 0 && events_.on_select) events_.on_select(now);
  }
  if (header.code == EN_LINK && events_.on_link) {
    const auto& link = reinterpret_cast<const ENLINK&>(header);
    events_.on_link(FromSystem(link.chrg), link.msg);
  }
  return 0;
}

void RichEdit::OnCommand(int code) {
  if (code != EN_CHANGE) return;
  KeepUndoSafe();
  if (quiet_ == 0 && events_.on_change) events_.on_change();
}

// Wine's control ends the program when it is to bring back a picture that has gone, so there no
// step that would is kept.
void RichEdit::KeepUndoSafe() {
  if (!IsWine()) return;
  const ComPointer<IRichEditOle> ole = Ole();
  const LONG pictures = ole ? ole->GetObjectCount() : 0;
  if (pictures < pictures_seen_) ForgetUndo();
  pictures_seen_ = pictures;
}

LRESULT RichEdit::Answer(const ControlMessage& message) {
  if (message.message == WM_NCDESTROY) {
    if (handle_ == message.control) handle_ = nullptr;
  } else if (Intercept(message.message, message.wparam, message.lparam)) {
    return 0;
  }
  const LRESULT answer = hook_.PassOn(message);
  const bool painted = message.message == WM_PAINT && message.control == handle_;
  if (painted && quiet_ == 0 && painted_) painted_();
  // Else Tab would select the whole text, and the next letter replace it.
  return message.message == WM_GETDLGCODE ? answer & ~LRESULT{DLGC_HASSETSEL} : answer;
}

// True when the message is not for the control.
bool RichEdit::Intercept(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_PASTE:
    case EM_PASTESPECIAL:
      Paste();
      return true;
    case WM_COPY:
      return Copy(false);
    case WM_CUT:
      return Copy(true);
    case WM_DROPFILES:
      OnDrop(reinterpret_cast<HDROP>(wparam));
      return true;
    case WM_KEYDOWN:
      return OnKey(wparam);
    case WM_MOUSEWHEEL:
      return OnWheel(wparam);
    case WM_CONTEXTMENU:
      // Some versions keep it to themselves and show nothing.
      ::SendMessageW(::GetParent(handle_), message, reinterpret_cast<WPARAM>(handle_), lparam);
      return true;
    default:
      return false;
  }
}

// The clipboard's keys, which the control would follow by itself.
bool RichEdit::OnKey(WPARAM key) {
  const bool control = Held(VK_CONTROL) && !Held(VK_MENU);
  const bool shift = Held(VK_SHIFT);
  if ((control && key == 'V') || (shift && !control && key == VK_INSERT)) {
    Paste();
    return true;
  }
  if (control && !shift && (key == 'C' || key == VK_INSERT)) return Copy(false);
  return ((control && key == 'X') || (shift && !control && key == VK_DELETE)) && Copy(true);
}

bool RichEdit::OnWheel(WPARAM wparam) {
  if (!events_.on_zoom || !(LOWORD(wparam) & MK_CONTROL)) return false;
  wheel_turn_ += static_cast<short>(HIWORD(wparam));
  if (const int notches = wheel_turn_ / WHEEL_DELTA; notches != 0) events_.on_zoom(notches);
  wheel_turn_ %= WHEEL_DELTA;
  return true;
}

bool RichEdit::WritesRaisedInTwips() {
  return IsWine();
}

bool RichEdit::SwapsIndents() {
  return IsWine();
}

void RichEdit::Paste() {
  if (events_.on_paste) events_.on_paste();
}

bool RichEdit::Copy(bool cut) {
  if (!events_.on_copy || Selection().empty() || !events_.on_copy(cut)) return false;
  if (cut) Replace(L"");
  return true;
}

void RichEdit::OnDrop(HDROP drop) {
  POINT point = {};
  ::DragQueryPoint(drop, &point);
  const std::vector<std::wstring> paths = DroppedPaths(drop);
  ::DragFinish(drop);
  if (events_.on_files) {
    events_.on_files(paths, PositionAt({static_cast<int>(point.x), static_cast<int>(point.y)}));
  }
}

// --- content

bool RichEdit::StreamIn(UINT format, std::string_view bytes, const GoOn& go_on) const {
  Source source{bytes, go_on};
  EDITSTREAM stream = {reinterpret_cast<DWORD_PTR>(&source), 0, ReadPiece};
  SendTo(EM_STREAMIN, format, stream);
  return stream.dwError == 0;
}

std::string RichEdit::StreamOut(UINT format) const {
  std::string bytes;
  EDITSTREAM stream = {reinterpret_cast<DWORD_PTR>(&bytes), 0, WritePiece};
  SendTo(EM_STREAMOUT, format, stream);
  // Half a text must never be taken for the whole.
  if (stream.dwError != 0) throw std::runtime_error("the editor did not give its text");
  return bytes;
}

bool RichEdit::PutRtf(std::string_view rtf, Scope scope, const GoOn& go_on) {
  return StreamIn(static_cast<UINT>(SF_RTF | StreamScope(scope)), rtf, go_on);
}

bool RichEdit::PutText(std::wstring_view text, Scope scope, const GoOn& go_on) {
  // A line end of two units that falls on the edge of two pieces counts twice on some systems.
  const std::wstring units = WithSingleLineEnds(text);
  const std::string_view bytes(reinterpret_cast<const char*>(units.data()),
                               units.size() * sizeof(wchar_t));
  return StreamIn(static_cast<UINT>(SF_TEXT | SF_UNICODE | StreamScope(scope)), bytes, go_on);
}

void RichEdit::Replace(const std::wstring& text) {
  Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

std::string RichEdit::Rtf(Scope scope) const {
  std::string rtf = StreamOut(static_cast<UINT>(SF_RTF | StreamScope(scope)));
  // Some versions end it by a zero.
  rtf.resize(rtf.find_last_not_of('\0') + 1);
  return rtf;
}

std::wstring RichEdit::Text(Scope scope) const {
  const std::string bytes = StreamOut(static_cast<UINT>(SF_TEXT | SF_UNICODE | StreamScope(scope)));
  std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
  std::copy_n(bytes.data(), text.size() * sizeof(wchar_t), reinterpret_cast<char*>(text.data()));
  return text;
}

std::wstring RichEdit::Units(RichRange range) const {
  range.to = std::min(range.to, Length());
  if (range.empty()) return {};
  // One more for the zero, and one as some versions count the last line's end.
  std::wstring text(static_cast<std::size_t>(range.to - range.from) + 2, L'\0');
  TEXTRANGEW wanted = {ToSystem(range), text.data()};
  const LRESULT length = SendTo(EM_GETTEXTRANGE, 0, wanted);
  text.resize(static_cast<std::size_t>(std::clamp<LRESULT>(length, 0, range.to - range.from)));
  return text;
}

int RichEdit::Length() const {
  constexpr UINT kUtf16 = 1200;
  GETTEXTLENGTHEX wanted = {GTL_NUMCHARS, kUtf16};
  return static_cast<int>(Send(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&wanted)));
}

// --- selection and places

RichRange RichEdit::Selection() const {
  CHARRANGE range = {};
  SendTo(EM_EXGETSEL, 0, range);
  return FromSystem(range);
}

void RichEdit::Select(RichRange range) {
  CHARRANGE wanted = ToSystem(range);
  SendTo(EM_EXSETSEL, 0, wanted);
}

int RichEdit::Caret() const {
  const RichRange selection = Selection();
  return caret_ == selection.from ? selection.from : selection.to;
}

void RichEdit::ScrollToCaret() {
  Send(EM_SCROLLCARET);
}

RichRange RichEdit::Find(const std::wstring& text, RichRange within, FindOptions options) const {
  FINDTEXTEXW wanted = {};
  wanted.lpstrText = text.c_str();
  // Backwards the range is told from its end.
  wanted.chrg = options.backwards ? CHARRANGE{within.to, within.from} : ToSystem(within);
  const DWORD flags = (options.backwards ? 0 : FR_DOWN) | (options.match_case ? FR_MATCHCASE : 0) |
                      (options.whole_words ? FR_WHOLEWORD : 0);
  if (text.empty() || SendTo(EM_FINDTEXTEXW, flags, wanted) < 0) return {};
  return FromSystem(wanted.chrgText);
}

int RichEdit::LineOf(int position) const {
  return static_cast<int>(Send(EM_EXLINEFROMCHAR, 0, position));
}

int RichEdit::LineCount() const {
  return static_cast<int>(Send(EM_GETLINECOUNT));
}

int RichEdit::LineStart(int line) const {
  return static_cast<int>(Send(EM_LINEINDEX, static_cast<WPARAM>(line)));
}

Point RichEdit::PointOf(int position) const {
  POINTL point = {};
  Send(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&point), position);
  return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

int RichEdit::PositionAt(Point point) const {
  POINTL wanted = {point.x, point.y};
  return static_cast<int>(SendTo(EM_CHARFROMPOS, 0, wanted));
}

Point RichEdit::ScrollPosition() const {
  POINT point = {};
  SendTo(EM_GETSCROLLPOS, 0, point);
  return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

void RichEdit::SetScrollPosition(Point point) {
  POINT wanted = {point.x, point.y};
  SendTo(EM_SETSCROLLPOS, 0, wanted);
}

}  // namespace varnel
