#include "widgets/boards/board_form.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "base/number_text.h"
#include "base/resample.h"
#include "resources/control_ids.h"
#include "widgets/boards/text_picture_win.h"
#include "win/graphics/pictures.h"
#include "win/system/clipboard.h"
#include "win/windows/message_box.h"

namespace varnel {
namespace {

constexpr int kRepaintMs = 60;
constexpr int kDraftTickMs = 500;
constexpr int kMostPastedUnits = 10'000;
constexpr int kPointsToAnInch = 72;
constexpr int kStep = 1, kLongStep = 10;  // pixels that an object is moved by keys
constexpr int kScrollStep = 40;           // pixels that a key scrolls

// In the order of kPenWidths.
constexpr std::array<std::wstring_view, kPenWidths.size()> kWidthCommands = {
    L"PENTHIN", L"PENTHICK", L"PENMARKER", L"PENBROAD"};

std::wstring_view FaultWords(PictureFault fault) {
  switch (fault) {
    case PictureFault::kTooManyBytes:
    case PictureFault::kTooLarge:
      return L"is too large";
    case PictureFault::kUnknownKind:
      return L"is no picture that can be read";
    case PictureFault::kNone:
    case PictureFault::kDamaged:
      break;
  }
  return L"is damaged";
}

std::wstring FileNameOf(const std::wstring& path) {
  return path.substr(path.rfind(L'\\') + 1);
}

bool Held(int key) {
  return ::GetKeyState(key) < 0;
}

// Where an arrow key leads.
std::optional<Point> ArrowOf(WPARAM key) {
  switch (key) {
    case VK_LEFT:
      return Point{-1, 0};
    case VK_RIGHT:
      return Point{1, 0};
    case VK_UP:
      return Point{0, -1};
    case VK_DOWN:
      return Point{0, 1};
    default:
      return std::nullopt;
  }
}

}  // namespace

BoardForm::BoardForm(Services& services, const FormEntry& entry, int index,
                     const BoardTraits& traits, CommandTable::Rows rows, std::uint32_t ground)
    : WidgetForm(services, entry, index, {rows}),
      board_(ground),
      picMAINBOARD_(services.ui, board_, *this),
      tmrDRAW_(*this, kRepaintMs,
               [this] {
                 tmrDRAW_.Stop();
                 WidgetRefresh();
               }),
      draft_timer_(*this, kDraftTickMs,
                   [this] {
                     // As at the next tick, so that no draft comes late.
                     document().Tend(::GetTickCount64() + kDraftTickMs);
                     if (!board_.BoardModified()) draft_timer_.Stop();
                   }),
      traits_(traits),
      title_label_(services.ui),
      pen_label_(services.ui) {
  BindCommands();
}

// --- saving

bool BoardForm::MayClose() {
  board_.MouseUp();
  if (!document().Save()) {
    document().KeepDraft(::GetTickCount64());
    const Message question{entry().title, L"%1. Close it all the same?", MessageKind::kQuestion};
    return Ask(handle(), question, {document().trouble()});
  }
  return WidgetForm::MayClose();
}

void BoardForm::SaveState(SaveReason reason) {
  board_.MouseUp();
  if (!document().Save()) document().KeepDraft(::GetTickCount64());
  services().settings.Write(traits_.pen, NumberText(board_.PenColorIndex()));
  WidgetForm::SaveState(reason);
}

void BoardForm::OnBoardChanged() {
  document().Tend(::GetTickCount64());
  draft_timer_.Start();
  tmrDRAW_.Start();
}

void BoardForm::AfterChange(const Rect& shown) {
  picMAINBOARD_.Repaint(shown);
  OnBoardChanged();
}

void BoardForm::PutDown() {
  picMAINBOARD_.EndStroke();
  AfterChange(board_.DropFloat());
}

void BoardForm::TellTrouble(std::wstring trouble) {
  document().Tell(std::move(trouble));
  RefreshContent();
  RepaintStatus();
}

std::wstring BoardForm::StatusText() const {
  if (!document().trouble().empty()) return document().trouble();
  return board_.floating() ? L"Click or Enter puts it down, Esc drops it" : L"";
}

// --- objects

void BoardForm::FloatText(const std::wstring& text, int points, int wrap_width) {
  const bool eraser = board_.PenColorIndex() >= kEraser;
  const Colour colour = eraser ? kBlack : PenAt(board_.PenColorIndex()).colour;
  const double height = static_cast<double>(points) * dpi() / kPointsToAnInch;
  FloatPicture(FloatKind::kText, [=, face = paint().theme.strTHEMEPANELFONTNAME](double scale) {
    const int em = std::max(1, static_cast<int>(height * scale + 0.5));
    return TextPicture(text, {face, em, false}, colour, static_cast<int>(wrap_width * scale));
  });
}

void BoardForm::FloatPicture(FloatKind kind, const FloatSource& source) {
  picMAINBOARD_.EndStroke();
  if (board_.BoardInsertObject(kind, source, picMAINBOARD_.View())) {
    ::SetForegroundWindow(handle());
    ::SetFocus(picMAINBOARD_.handle());
  }
  ::InvalidateRect(picMAINBOARD_.handle(), nullptr, FALSE);
  tmrDRAW_.Start();
}

void BoardForm::FloatPicture(const Image& straight) {
  TellTrouble({});
  const auto source = [picture = OnGround(straight, RGB(255, 255, 255))](double scale) {
    if (scale == 1) return picture;
    return Resampled(picture, {static_cast<int>(picture.width() * scale + 0.5),
                               static_cast<int>(picture.height() * scale + 0.5)});
  };
  FloatPicture(FloatKind::kPicture, source);
}

void BoardForm::FloatPictureFile(const std::wstring& path) {
  const FileRead read = services().files.Read(path, kMostPictureBytes);
  if (!read) {
    TellTrouble(L"\"" + FileNameOf(path) + L"\" " + std::wstring(FileTrouble(read.result)));
    return;
  }
  const DecodedPicture decoded = DecodePicture(read.bytes);
  if (decoded.fault != PictureFault::kNone) {
    TellTrouble(L"\"" + FileNameOf(path) + L"\" " + std::wstring(FaultWords(decoded.fault)));
    return;
  }
  FloatPicture(decoded.image);
}

void BoardForm::Copy() {
  CopyContent(handle(), {{}, {}, PictureOfBoard()});
}

void BoardForm::Paste() {
  const ClipboardOffer offer = OfferOfClipboard();
  if (offer.files) {
    const auto paths = PastedFiles(handle());
    if (!paths.empty()) FloatPictureFile(paths.front());
  } else if (offer.picture) {
    const Image picture = PastedPicture(handle());
    if (picture.empty()) {
      TellTrouble(L"The picture on the clipboard cannot be read");
    } else {
      FloatPicture(picture);
    }
  } else if (const std::wstring text = PastedText(handle(), kMostPastedUnits); !text.empty()) {
    constexpr int kMostPoints = 400;
    const long long points = ReadNumber(services().settings, traits_.text_size, 1, kMostPoints);
    FloatText(text, static_cast<int>(points), TextWidth());
  }
}

// --- commands

std::wstring BoardForm::NameOf(std::wstring_view command) const {
  return std::wstring(traits_.commands).append(command);
}

void BoardForm::BindCommands() {
  const auto step_width = [this](int step) {
    return [this, step] { SetPenWidth(NextPenWidth(board_.pen_width(), step)); };
  };
  commands().Bind({{NameOf(L"UNDO"), [this] { Undo(); }, [this] { return board_.CanUndo(); }},
                   {NameOf(L"REDO"), [this] { Redo(); }, [this] { return board_.CanRedo(); }},
                   {NameOf(L"COPY"), [this] { Copy(); }},
                   {NameOf(L"PASTE"), [this] { Paste(); }},
                   {NameOf(L"PENS"), [this] { DropPens(); }},
                   {NameOf(L"PENWIDTH"), [this] { DropWidths(); }},
                   {NameOf(L"PENTHINNER"), step_width(-1)},
                   {NameOf(L"PENTHICKER"), step_width(1)}});
  commands().BindArray(
      NameOf(L"PENSUB"), kPens, [this](int pen) { SetPen(pen); },
      [this](int pen) { return std::min(board_.PenColorIndex(), kEraser) == pen; });
  for (std::size_t i = 0; i < kPenWidths.size(); ++i) {
    const int pixels = kPenWidths[i].pixels;
    commands().Bind({{.name = NameOf(kWidthCommands[i]),
                      .run = [this, pixels] { SetPenWidth(pixels); },
                      .checked = [this, pixels] { return board_.pen_width() == pixels; }}});
  }
}

void BoardForm::DropPens() {
  commands().DropMenu(cmdPENS, commands().Item(*commands().OfName(NameOf(L"PENS"))).children);
}

void BoardForm::DropWidths() {
  std::vector<MenuItem> items;
  for (const std::wstring_view width : kWidthCommands) {
    items.push_back(commands().Item(*commands().OfName(NameOf(width))));
  }
  commands().DropMenu(traits_.width_tool, items);
}

// --- keys and other messages

bool BoardForm::OnFirstKey(const MSG& message) {
  if (message.message != WM_KEYDOWN) return false;
  if (board_.floating() && OnFloatKey(message.wParam)) return true;
  const auto arrow = ArrowOf(message.wParam);
  const bool scrolls = picMAINBOARD_.scrollable() && ::GetFocus() == picMAINBOARD_.handle();
  if (!arrow || !scrolls || Held(VK_CONTROL) || Held(VK_MENU)) return false;
  picMAINBOARD_.ScrollBy(arrow->x * kScrollStep, arrow->y * kScrollStep);
  return true;
}

bool BoardForm::OnFloatKey(WPARAM key) {
  if (key == VK_ESCAPE) {
    AfterChange(board_.DropFloat());
    return true;
  }
  if (key == VK_RETURN) {
    AfterChange(board_.MergeFloat());
    return true;
  }
  const auto arrow = ArrowOf(key);
  if (!arrow || Held(VK_CONTROL)) return false;
  const int step = Held(VK_SHIFT) ? kLongStep : kStep;
  picMAINBOARD_.Repaint(board_.MoveFloat(arrow->x * step, arrow->y * step));
  return true;
}

LRESULT BoardForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_DROPFILES: {
      const auto drop = reinterpret_cast<HDROP>(wparam);
      const auto paths = DroppedPaths(drop);
      ::DragFinish(drop);
      if (!paths.empty()) FloatPictureFile(paths.front());
      return 0;
    }
    case WM_CANCELMODE:
    case WM_SHOWWINDOW:
      // A message box comes up, or the widget is hidden.
      if (picMAINBOARD_.handle()) picMAINBOARD_.EndStroke();
      break;
    default:
      break;
  }
  return WidgetForm::OnMessage(message, wparam, lparam);
}

}  // namespace varnel
