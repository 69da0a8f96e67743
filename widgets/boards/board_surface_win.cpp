#include "widgets/boards/board_surface_win.h"

#include <algorithm>
#include <utility>

#include "win/graphics/system_rect.h"

namespace varnel {
namespace {

constexpr int kBarWidth = 9;        // at 96 dpi
constexpr int kLeastWithBars = 64;  // of a board's height, at 96 dpi; less is all for the board
constexpr int kWheelPixels = 48;    // that a notch of the wheel scrolls, at 96 dpi
constexpr int kMostPoints = 64;     // that the system keeps

Point PointOf(LPARAM lparam) {
  return {static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))};
}

// The system keeps the low half of a coordinate, whose sign is lost where a monitor lies left of or
// above the first one.
int Signed(int coordinate) {
  return static_cast<short>(coordinate);
}

// What the system keeps of the way of the mouse to that place of the screen, the newest first.
// Looked for by the place alone, as the time of a message is not always that which is kept.
std::vector<MOUSEMOVEPOINT> KeptPoints(POINT place) {
  MOUSEMOVEPOINT newest = {place.x & 0xFFFF, place.y & 0xFFFF, 0, 0};
  std::vector<MOUSEMOVEPOINT> kept(kMostPoints);
  const int count = ::GetMouseMovePointsEx(sizeof newest, &newest, kept.data(), kMostPoints,
                                           GMMP_USE_DISPLAY_POINTS);
  kept.resize(static_cast<std::size_t>(std::max(count, 0)));
  return kept;
}

}  // namespace

BoardSurface::BoardSurface(Ui& ui, DrawingBoard& board, BoardSurfaceOwner& owner)
    : Window(ui),
      board_(board),
      owner_(owner),
      bar_(ui,
           [this](int row) {
             ScrollTo({origin_.x, row});
           }),
      across_bar_(
          ui,
          [this](int column) {
            ScrollTo({column, origin_.y});
          },
          ThumbAxis::kAcross) {}

bool BoardSurface::Load(HWND parent, int id, const std::wstring& name) {
  Creation creation;
  creation.class_name = L"VarnelBoard";
  creation.title = name;
  creation.style = WS_CHILD;
  creation.parent = parent;
  creation.id = id;
  return Create(creation) && bar_.Load(parent) && across_bar_.Load(parent);
}

void BoardSurface::Place(const Rect& place, const BoardSurfaceLook& look) {
  place_ = place;
  look_ = look;
  const Size board = owner_.BoardSize();
  const int bar = Scaled(kBarWidth, look.dpi);
  Rect view = place;
  const bool roomy = place.height() >= Scaled(kLeastWithBars, look.dpi);
  bool down = roomy && board.height > place.height();
  const bool across = roomy && board.width > place.width() - (down ? bar : 0);
  down = down || (across && board.height > place.height() - bar);
  if (down) view.right = std::max(view.left, view.right - bar);
  if (across) view.bottom = std::max(view.top, view.bottom - bar);
  bar_place_ = down ? Rect{view.right, view.top, place.right, view.bottom} : Rect{};
  across_place_ = across ? Rect{view.left, view.bottom, view.right, place.bottom} : Rect{};
  PlaceWindow(handle(), view, SWP_NOCOPYBITS);
  ::ShowWindow(handle(), view.empty() ? SW_HIDE : SW_SHOWNA);
  bar_.Place(bar_place_, look.ground, look.thumb);
  across_bar_.Place(across_place_, look.ground, look.thumb);
  ScrollTo(origin_);
  ::InvalidateRect(handle(), nullptr, FALSE);
}

Rect BoardSurface::View() const {
  const Rect area = client();
  return RectAt(origin_, {area.width(), area.height()});
}

void BoardSurface::ScrollTo(Point origin) {
  const Size board = owner_.BoardSize();
  const Rect area = client();
  origin.x = std::clamp(origin.x, 0, std::max(0, board.width - area.width()));
  origin.y = std::clamp(origin.y, 0, std::max(0, board.height - area.height()));
  if (std::exchange(origin_, origin) != origin) ::InvalidateRect(handle(), nullptr, FALSE);
  bar_.SetRange({origin_.y, area.height(), board.height});
  across_bar_.SetRange({origin_.x, area.width(), board.width});
}

void BoardSurface::ScrollBy(int across, int down) {
  ScrollTo({origin_.x + across, origin_.y + down});
}

void BoardSurface::OnWheel(int turn, bool ctrl, bool across) {
  wheel_turn_ += turn;
  if (ctrl && board_.floating()) {
    Repaint(board_.ScaleFloat(wheel_turn_ / WHEEL_DELTA));
    wheel_turn_ %= WHEEL_DELTA;
    return;
  }
  const int pixels = wheel_turn_ * Scaled(kWheelPixels, look_.dpi) / WHEEL_DELTA;
  wheel_turn_ = 0;
  ScrollBy(across ? -pixels : 0, across ? 0 : -pixels);
}

// --- painting

void BoardSurface::Repaint(const Rect& shown) {
  if (shown.empty()) return;
  owner_.OnBoardRepaint(shown);
  const RECT area{shown.left - origin_.x, shown.top - origin_.y, shown.right - origin_.x,
                  shown.bottom - origin_.y};
  ::InvalidateRect(handle(), &area, FALSE);
}

void BoardSurface::Paint() {
  PAINTSTRUCT paint;
  HDC dc = ::BeginPaint(handle(), &paint);
  const Rect area = FromSystem(paint.rcPaint);
  if (!area.empty()) {
    Surface surface({area.width(), area.height()});
    const Rect part = RectAt(OnBoard({area.left, area.top}), surface.size());
    owner_.PaintBoard(surface, part);
    PaintFloat(surface, part);
    surface.CopyTo(dc, {area.left, area.top});
  }
  ::EndPaint(handle(), &paint);
}

void BoardSurface::PaintFloat(Surface& surface, const Rect& part) const {
  const Rect box = board_.FloatBox();
  const Rect seen = Intersection(box, part);
  const auto pixels = surface.pixels();
  if (seen.empty() || pixels.empty()) return;
  for (int y = seen.top; y < seen.bottom; ++y) {
    const auto above = board_.picFLOAT().Row(y - box.top);
    const auto row = pixels.subspan(static_cast<std::size_t>(y - part.top) *
                                    static_cast<std::size_t>(surface.size().width));
    for (int x = seen.left; x < seen.right; ++x) {
      std::uint32_t& pixel = row[static_cast<std::size_t>(x - part.left)];
      pixel = PixelOver(pixel, above[static_cast<std::size_t>(x - box.left)]);
    }
  }
}

// --- the mouse

void BoardSurface::OnDown(Point at, BoardButton button) {
  ::SetFocus(handle());
  ::SetCapture(handle());
  POINT screen{at.x, at.y};
  ::ClientToScreen(handle(), &screen);
  const auto kept = KeptPoints(screen);
  last_ = kept.empty() ? MOUSEMOVEPOINT{} : kept.front();
  const bool merged = board_.floating();
  Repaint(board_.MouseDown(OnBoard(at), button));
  ::UpdateWindow(handle());
  if (merged && !board_.floating()) owner_.OnBoardChanged();
}

void BoardSurface::OnMove(Point at, bool held) {
  if (board_.drawing() && !held) EndStroke();
  if (board_.drawing()) {
    for (const Point point : PointsSince(at)) Repaint(board_.MouseMove(OnBoard(point)));
  } else {
    Repaint(board_.MouseMove(OnBoard(at)));
  }
  owner_.OnPointer(OnBoard(at));
  // At once: moves that come quickly would put painting off.
  ::UpdateWindow(handle());
}

// Where the mouse was since the last point, up to `at`: moves that came too quickly to be messages
// of their own are kept by the system.
std::vector<Point> BoardSurface::PointsSince(Point at) {
  POINT corner{0, 0};
  ::ClientToScreen(handle(), &corner);
  const auto kept = KeptPoints({at.x + corner.x, at.y + corner.y});
  std::vector<Point> points;
  for (const MOUSEMOVEPOINT& point : kept) {
    const auto later = static_cast<std::int32_t>(point.time - last_.time);
    if (later < 0 || (later == 0 && point.x == last_.x && point.y == last_.y)) break;
    points.push_back({Signed(point.x) - static_cast<int>(corner.x),
                      Signed(point.y) - static_cast<int>(corner.y)});
  }
  std::ranges::reverse(points);
  if (!kept.empty()) last_ = kept.front();
  if (points.empty() || points.back() != at) points.assign(1, at);
  return points;
}

void BoardSurface::OnUp() {
  if (::GetCapture() == handle()) ::ReleaseCapture();
}

void BoardSurface::EndStroke() {
  const bool drew = board_.drawing();
  board_.MouseUp();
  OnUp();
  if (drew) owner_.OnBoardChanged();
}

std::optional<LRESULT> BoardSurface::TellAccessible(WPARAM wparam, LPARAM lparam) {
  if (!accessible_) {
    AccessibleSource source = owner_.TellBoard();
    if (!source.whole) return {};
    accessible_ = std::make_unique<Accessible>(std::move(source));
  }
  return accessible_->OnMessage(handle(), WM_GETOBJECT, wparam, lparam);
}

LRESULT BoardSurface::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_LBUTTONDOWN:
      OnDown(PointOf(lparam), BoardButton::kLeft);
      return 0;
    case WM_RBUTTONDOWN:
      OnDown(PointOf(lparam), BoardButton::kRight);
      return 0;
    case WM_MOUSEMOVE:
      OnMove(PointOf(lparam), (wparam & (MK_LBUTTON | MK_RBUTTON)) != 0);
      return 0;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
      OnMove(PointOf(lparam), true);
      OnUp();
      return 0;
    case WM_CAPTURECHANGED:
      EndStroke();
      return 0;
    case WM_GETOBJECT:
      if (const auto answer = TellAccessible(wparam, lparam)) return *answer;
      return Window::OnMessage(message, wparam, lparam);
    case WM_SETCURSOR:
      ::SetCursor(::LoadCursorW(nullptr, MAKEINTRESOURCEW(board_.floating() ? 32646 : 32515)));
      return TRUE;
    default:
      return Window::OnMessage(message, wparam, lparam);
  }
}

}  // namespace varnel
