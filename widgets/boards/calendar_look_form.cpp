// The part of the calendar's form that makes, places and paints.
#include <algorithm>

#include "base/number_text.h"
#include "base/resample.h"
#include "frame/frame_painter_win.h"
#include "frame/pages/picture_paper_win.h"
#include "resources/control_ids.h"
#include "widgets/boards/calendar_form.h"
#include "win/graphics/font_measure.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kTitleFont = 17;
constexpr int kTodayFont = 20;
constexpr int kTodayLineFont = 10;
constexpr int kBoardInset = 2;
constexpr int kStripGap = 12;

constexpr int kPrintedWidth = 2400;  // pixels that a printed month has at least, where it can
constexpr int kLongestPrinted = 8000;
constexpr Size kUsualBoard{470, 240};  // of a file that is written while nothing is shown

int ToolId(CalendarTool tool) {
  return cmdCALTOOL + static_cast<int>(tool);
}

}  // namespace

void CalendarForm::OnLoad() {
  // Tab goes from tool to tool as they stand.
  constexpr auto kAfterPens = static_cast<int>(CalendarTool::kPenWidth);
  const auto add = [this](int tool) {
    commands().AddTool(cmdCALTOOL + tool, commands().OfTool(tool));
  };
  for (int i = 0; i < kAfterPens; ++i) add(i);
  BoardForm::OnLoad();
  for (int i = kAfterPens; i < static_cast<int>(kCalendarTools); ++i) add(i);
  lblSeptember2015_.Load(handle(), lblSeptember2015);
  lablDAYNO_.Load(handle(), lablDAYNO);
  lablDAY_.Load(handle(), lablDAY);
  lblDATETODAY_.Load(handle(), lblDATETODAY);
  lblSCREEN_.Load(handle(), lblSCREEN);
  lblMOUSE_.Load(handle(), lblMOUSE);
  link_.widget = this;
  FolderChanged();
}

void CalendarForm::OnUnload() {
  link_.widget = nullptr;
  watch_.Watch({});
  midnight_timer_.Stop();
  BoardForm::OnUnload();
}

// --- places

// What the widest title of the year takes, so that the tools stay where they are.
int CalendarForm::TitleWidth() const {
  const FontMeasure measure(ui().fonts, paint().theme.strTHEMEPANELFONTNAME, true);
  int width = 0;
  for (int month = 1; month <= 12; ++month) {
    const std::wstring title = MonthTitle({calendar_.month().year, month}, services().formatter);
    width = std::max(width, measure.Measure(title, Scaled(kTitleFont, dpi())).width);
  }
  return width + 2 * HaloRoom(dpi());
}

void CalendarForm::LayOutPanel(const Rect& panel) {
  places_ = LayOutCalendar({panel.width(), panel.height()}, dpi(), TitleWidth());
  const Rect document = Within(panel, places_.document);
  const Rect board = places_.document.empty() ? Rect{} : Inset(document, kBoardInset);
  const Size former = grid_.size;
  grid_ = LayOutCalendarGrid({board.width(), board.height()}, dpi());
  const SheetMaps maps = MapsOf(grid_);
  board_.ShowBy(maps.across, maps.down);
  if (grid_.size != former) ground_ = ink_ = Image();
  PlacePens(panel, places_.pens, places_.pen_menu);
  for (std::size_t i = 0; i < kCalendarTools; ++i) {
    const Rect& box = places_.tools[i];
    PlaceButton(cmdCALTOOL + static_cast<int>(i), box.empty() ? Rect{} : Within(panel, box));
  }
  picMAINBOARD_.Place(board, SurfaceLook());
  PlaceLabels(panel);
  PlaceStripLabels();
  PlacePenLabel();
}

void CalendarForm::PlaceLabels(const Rect& panel) {
  const std::wstring title = calendar_.title();
  PlaceTitle(BarTitle());
  lblSeptember2015_.SetText(title);
  const FontMeasure measure(ui().fonts, paint().theme.strTHEMEPANELFONTNAME, true);
  const Rect& box = places_.title;
  const int height = FittingHeight(title, {box.width() - 2 * HaloRoom(dpi()), box.height()},
                                   Scaled(kTitleFont, dpi()), measure);
  TextStyle style = PanelTextStyle(std::max(1, height));
  style.font.bold = true;
  style.align = Align::kLeft;
  lblSeptember2015_.Place(box.empty() ? Rect{} : Within(panel, box), style);
  lblSeptember2015_.Show(!box.empty());
  PlaceToday(panel);
}

void CalendarForm::PlaceToday(const Rect& panel) {
  const bool shown = !places_.today_number.empty();
  const Rect number = shown ? Within(panel, places_.today_number) : Rect{};
  Rect upper = shown ? Within(panel, places_.today_lines) : Rect{};
  Rect lower = upper;
  upper.bottom = lower.top = (upper.top + upper.bottom) / 2;
  lablDAYNO_.SetText(DayName(today_, L"d"));
  lablDAY_.SetText(DayName(today_, L"dddd"));
  lblDATETODAY_.SetText(L"Today");
  TextStyle style = PanelTextStyle(Scaled(kTodayFont, dpi()));
  style.font.bold = true;
  lablDAYNO_.Place(number, style);
  TextStyle line = PanelTextStyle(Scaled(kTodayLineFont, dpi()));
  line.align = Align::kLeft;
  line.side_room = HaloRoom(dpi());
  lblDATETODAY_.Place(upper, line);
  lablDAY_.Place(lower, line);
  for (ThemedLabel* label : {&lablDAYNO_, &lablDAY_, &lblDATETODAY_}) label->Show(shown);
}

// One of the two at the left of the strip, before the pen.
void CalendarForm::PlaceStripLabels() {
  const std::wstring said = BoardForm::StatusText();
  lblSCREEN_.SetText(said);
  lblMOUSE_.SetText(PointedText());
  Rect box = layout().status_text;
  box.top += 1;  // below the line that the frame draws
  const TextStyle style = StripTextStyle(paint(), dpi());
  const FontMeasure measure(ui().fonts, style.font.face, false);
  const int width =
      measure.Measure(StripText(), style.font.height).width + Scaled(kStripGap, dpi()) / 2;
  box.right = std::min(box.right, box.left + width);
  for (ThemedLabel* label : {&lblSCREEN_, &lblMOUSE_}) label->Place(box, style);
  lblSCREEN_.Show(!said.empty() && !box.empty());
  lblMOUSE_.Show(said.empty() && !box.empty());
}

std::wstring CalendarForm::StripText() const {
  const std::wstring said = BoardForm::StatusText();
  return said.empty() ? PointedText() : said;
}

std::wstring CalendarForm::PointedText() const {
  constexpr std::wstring_view kBrief = L"ddd d mmm";
  const Date day = pointed_ < 0 ? today_ : month_grid_.days[static_cast<std::size_t>(pointed_)];
  const TextStyle style = StripTextStyle(paint(), dpi());
  return FirstFitting(
      std::array{DayText(day, L"dddd d mmmm"), DayText(day, kBrief), DayName(day, kBrief)},
      layout().status_text.width() - 2 * HaloRoom(dpi()), style.font.height,
      FontMeasure(ui().fonts, style.font.face, false));
}

std::wstring CalendarForm::BarTitle() const {
  const Month month = calendar_.month();
  const std::wstring brief = DayName({month.year, month.month, 1}, L"mmm");
  const TextStyle style = BarTextStyle(paint(), dpi());
  return FirstFitting(
      std::array{calendar_.title(), brief + L" " + PaddedNumber(month.year, 4), brief},
      layout().title_text.width() - 2 * HaloRoom(dpi()), style.font.height,
      FontMeasure(ui().fonts, style.font.face, style.font.bold));
}

void CalendarForm::RefreshContent() {
  PlaceStripLabels();
  BoardForm::RefreshContent();
  ::SetWindowTextW(handle(), (calendar_.title() + L" - " + std::wstring(entry().title)).c_str());
}

// --- painting

void CalendarForm::PaintPanel(Surface& surface, const Rect& panel) {
  if (!places_.document.empty()) PaintBoardFrame(surface, Within(panel, places_.document));
}

void CalendarForm::DrawPanelButton(const ButtonPainting& painting) {
  const int id = painting.button.id;
  DrawTool(painting, (id == ToolId(CalendarTool::kText) && board_.BoardMode() == L"TEXT") ||
                         (id == ToolId(CalendarTool::kIcon) && board_.BoardMode() == L"ICON"));
}

void CalendarForm::CalendarRefreshBoard() {
  ground_ = ink_ = Image();
  ::InvalidateRect(picMAINBOARD_.handle(), nullptr, FALSE);
}

const Image& CalendarForm::InkShown() {
  if (ink_.width() != grid_.size.width || ink_.height() != grid_.size.height) {
    ink_ = Image(grid_.size.width, grid_.size.height);
    stale_ = {0, 0, ink_.width(), ink_.height()};
  }
  if (!stale_.empty()) {
    const SheetMaps maps = MapsOf(grid_);
    Resample(board_.pixels(), maps.across, maps.down, ink_, stale_);
    stale_ = {};
  }
  return ink_;
}

Image CalendarForm::PaintedGrid(const CalendarGrid& grid, const MonthGrid& month) {
  Surface surface(grid.size);
  PaintMonthGrid(ui(), surface, grid, month, paint());
  Image picture(grid.size.width, grid.size.height);
  const auto pixels = surface.pixels();
  std::ranges::transform(pixels.first(std::min(pixels.size(), picture.All().size())),
                         picture.All().begin(),
                         [](std::uint32_t pixel) { return pixel | 0xFF000000U; });
  return picture;
}

void CalendarForm::PaintBoard(Surface& surface, const Rect& part) {
  if (ground_.empty()) ground_ = PaintedGrid(grid_, month_grid_);
  const Image& ink = InkShown();
  const Rect shown = Intersection(part, {0, 0, ink.width(), ink.height()});
  PutImage(surface, {-part.left, -part.top}, ground_);
  const auto pixels = surface.pixels();
  if (pixels.empty()) return;
  for (int y = shown.top; y < shown.bottom; ++y) {
    const auto above = ink.Row(y);
    const auto row = pixels.subspan(static_cast<std::size_t>(y - part.top) *
                                    static_cast<std::size_t>(surface.size().width));
    for (int x = shown.left; x < shown.right; ++x) {
      const std::uint32_t inked = above[static_cast<std::size_t>(x)];
      std::uint32_t& pixel = row[static_cast<std::size_t>(x - part.left)];
      if (inked != 0) pixel = PixelOver(pixel, inked);
    }
  }
}

// For the month's file: at the size that is shown, without the mark of today, which would soon be
// wrong there.
Image CalendarForm::PictureOfMonth(Month month, const MonthInk& ink) {
  const bool shown = grid_.size.width > 0 && grid_.size.height > 0;
  const CalendarGrid grid = shown ? grid_ : LayOutCalendarGrid(kUsualBoard, kDefaultDpi);
  const MonthGrid days = GridOfMonth(month, ink.first_weekday, false);
  if (!shown || ink.sheet != board_.pixels()) return PictureOn(grid, days, ink.sheet);
  // The grid as it stands on the screen, where today is not in it.
  const bool painted = !ground_.empty() && month_grid_.month == month && month_grid_.today < 0;
  Image picture = painted ? ground_ : PaintedGrid(grid, days);
  std::ranges::transform(picture.All(), InkShown().All(), picture.All().begin(), PixelOver);
  return picture;
}

Image CalendarForm::PictureOn(const CalendarGrid& grid, const MonthGrid& month,
                              const Image& sheet) {
  Image picture = PaintedGrid(grid, month);
  Image above(grid.size.width, grid.size.height);
  const SheetMaps maps = MapsOf(grid);
  Resample(sheet, maps.across, maps.down, above, {0, 0, above.width(), above.height()});
  std::ranges::transform(picture.All(), above.All(), picture.All().begin(), PixelOver);
  return picture;
}

// As wide as it is shown, in the proportions of the sheet, with letters and ink as fine as paper
// has them.
void CalendarForm::CalendarPrint() {
  picMAINBOARD_.EndStroke();
  const int shown = grid_.size.width > 0 ? grid_.size.width : kUsualBoard.width;
  const int finer = std::clamp(kPrintedWidth / shown, 1, 4);
  const int width = std::min(shown * finer, kLongestPrinted);
  const CalendarGrid grid =
      LayOutCalendarGrid({width, width * kSheetSize.height / kSheetSize.width}, dpi() * finer);
  const MonthGrid month = GridOfMonth(calendar_.month(), calendar_.first_weekday(), false);
  printing_.Show(std::make_shared<PicturePaper>(
      calendar_.title(), L"", PictureOn(grid, month, board_.pixels()), dpi() * finer));
}

Image CalendarForm::PictureOfBoard() {
  return PictureOfMonth(calendar_.month(), {board_.pixels(), calendar_.first_weekday()});
}

}  // namespace varnel
