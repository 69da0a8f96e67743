// Print preview and printing: what is looked at is what comes out.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <random>

#include "base/bmp.h"
#include "base/number_text.h"
#include "base/text.h"
#include "resources/control_ids.h"
#include "tests/rig/printer.h"
#include "tests/rig/scene.h"
#include "widgets/boards/board_folders.h"
#include "widgets/boards/board_names.h"
#include "win/graphics/pictures.h"
#include "win/system/com.h"

namespace varnel {
namespace {

using namespace rig;
constexpr wchar_t kDetails[] = L"frmNOTpp\\Details";

// Formatted paragraphs of every alignment, from a seed.
std::string NoteOf(int paragraphs) {
  static constexpr const char* kWords[] = {"the",   "quick",  "brown",      "fox",  "jumps",
                                           "over",  "lazy",   "wizards",    "brew", "potions",
                                           "under", "bridge", "remarkable", "a",    "stones"};
  static constexpr const char* kAlignments[] = {"\\ql", "\\qj", "\\qr", "\\qc"};
  std::mt19937 random(5);
  std::string rtf =
      "{\\rtf1\\ansi{\\fonttbl{\\f0 Times New Roman;}{\\f1 Arial;}}"
      "{\\colortbl;\\red200\\green20\\blue20;}\\f0\\fs24 {\\b\\fs40 Heading}\\par ";
  for (int i = 0; i < paragraphs; ++i) {
    rtf += std::string("\\pard\\sa120") + kAlignments[random() % 4] + " ";
    for (unsigned words = 20 + random() % 80; words > 0; --words) {
      const std::string word = kWords[random() % std::size(kWords)];
      const unsigned look = random() % 30;
      rtf += look == 0   ? "{\\b " + word + "}"
             : look == 1 ? "{\\cf1\\i " + word + "}"
             : look == 2 ? "{\\f1\\fs32 " + word + "}"
                         : word;
      rtf += words > 1 ? " " : "";
    }
    rtf += "\\par ";
  }
  return rtf + "}";
}

// A heading, a picture, and a line for every format.
std::string FormatsNote() {
  const ComApartment apartment;
  Image picture(160, 80, 0xFF3060C0);
  picture.Fill(Rect{40, 20, 120, 60}, 0xFFF0C020);
  std::string hex;
  for (const char byte : EncodePng(picture)) {
    constexpr char kDigits[] = "0123456789abcdef";
    hex += kDigits[static_cast<unsigned char>(byte) >> 4];
    hex += kDigits[byte & 15];
  }
  return "{\\rtf1\\ansi{\\fonttbl{\\f0 Times New Roman;}{\\f1 Arial;}}"
         "{\\colortbl;\\red200\\green20\\blue20;\\red255\\green240\\blue150;}\\f1\\fs40\\b "
         "Heading\\par\\f0\\fs28\\b0 "
         "{\\pict\\pngblip\\picw160\\pich80\\picwgoal4800\\pichgoal2400 " +
         hex +
         "}\\par {\\b heavy} {\\i slanted} {\\ul lined} {\\strike struck} {\\super raised} "
         "{\\sub lowered}\\par {\\highlight2 on yellow} {\\cf1 in red}\\par \\pard\\qr right\\par "
         "\\pard\\qc centre\\par \\pard\\li1440 indented\\par \\pard\\tx4320 a\\tab tab\\par "
         "{\\f1\\fs60 large}}";
}

// How dark a part of a picture is on the whole: 0 white to 255 black.
int Darkness(const Picture& picture, Point corner, int side) {
  long long sum = 0;
  for (int i = 0; i < side * side; ++i) {
    const COLORREF colour = picture.At({corner.x + i % side, corner.y + i / side});
    sum += 255 - (GetRValue(colour) + GetGValue(colour) + GetBValue(colour)) / 3;
  }
  return static_cast<int>(sum / (side * side));
}

class Printing : public Scene {
 protected:
  // Starts the program with one widget and opens the preview of what it shows.
  void OpenPreview(const wchar_t* start, const wchar_t* form, const wchar_t* command) {
    root().settings().SetText(L"frmVRNpr\\Details", start, L"True");
    ASSERT_TRUE(program().Start(L"/tray"));
    form_ = WaitForForm(program(), form);
    ASSERT_TRUE(form_ && program().WaitUntilIdle());
    ASSERT_TRUE(Activate(form_));
    PrepareWidget();
    Choose(form_, command);
    preview_ = WaitForForm(program(), L"frmNOTpp");
    ASSERT_TRUE(preview_);
    ASSERT_SOON(PageCount() > 0);
    ASSERT_TRUE(Activate(preview_));
  }
  void OpenNote(int paragraphs) { OpenNote(NoteOf(paragraphs)); }
  void OpenNote(const std::string& rtf) {
    WriteBytes(root().folder() + L"\\tavrin\\Journey.rtf", rtf);
    OpenPreview(L"Start-Load-Notes", L"frmNOTwg", L"mnuNOTESPRINT");
    ASSERT_SOON(Text(preview_).starts_with(L"Journey"));
  }
  void PrepareWidget() {
    // The one document that there is.
    HWND list = Control(form_, lvwFILES);
    ASSERT_SOON(RowLabels(list).size() == 1);
    const Rect rows = RectOf(list);
    Click({rows.left + 40, rows.top + 14});
    if (ClassOf(form_) == L"frmWBDwg") {
      ASSERT_SOON(Text(form_).starts_with(L"Blue"));
      return;
    }
    ASSERT_SOON(Text(Control(form_, rtbPAGEBOX)).find(L"Heading") != std::wstring::npos);
  }
  // Once all pages are laid out; 0 before.
  int PageCount() {
    const std::wstring text = Text(Control(preview_, lblPAGES));
    if (!text.starts_with(L"of ") || text.ends_with(L"+")) return 0;
    return static_cast<int>(WholeNumber(text.substr(3)).value_or(0));
  }
  std::wstring Page() { return Text(Control(preview_, txtPAGE)); }
  std::wstring Status() { return Text(Control(preview_, lblSTATUS)); }
  // The lines of every page as the preview shows them.
  std::vector<PrintedLines> ShownPages() {
    std::vector<PrintedLines> pages;
    EXPECT_TRUE(ClickOn(Control(preview_, cmdFIRSTPAGE)) || Page() == L"1");
    for (int page = 1, pages_in_all = PageCount(); page <= pages_in_all; ++page) {
      EXPECT_SOON_EQ(Page(), NumberText(page));
      pages.push_back(LinesOf(Text(Control(preview_, picSHEETS))));
      if (page < pages_in_all) EXPECT_TRUE(ClickOn(Control(preview_, cmdNEXTPAGE)));
    }
    return pages;
  }
  void WithoutTexts() {
    for (const wchar_t* name : {L"Header-Left", L"Header-Right", L"Footer-Centre"}) {
      root().settings().SetText(kDetails, name, L"\"\"");
    }
  }
  HWND PrintDialogOf() {
    PressButton(preview_, cmdPRINT);
    return WaitForDialog(program());
  }
  // Asks for copies of a range of pages.
  void AnswerPrintDialog(const wchar_t* from, const wchar_t* to, const wchar_t* copies) {
    // The numbers that the system's dialog gives its controls.
    constexpr int kRange = 1058, kFrom = 1152, kTo = 1153, kCopies = 1154;
    HWND dialog = PrintDialogOf();
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(ClickOn(Control(dialog, kRange)));
    SetText(Control(dialog, kFrom), from);
    SetText(Control(dialog, kTo), to);
    SetText(Control(dialog, kCopies), copies);
    ASSERT_TRUE(CloseDialog(dialog, IDOK));
  }
  // The test platform's printing is slow beside other work.
  bool Printed(std::wstring_view told) {
    return WaitUntil([&] { return Status().find(told) != std::wstring::npos; }, 4 * kPatience);
  }
  bool Kept(const wchar_t* name, const std::wstring& value) {
    return WaitUntil([&] { return root().settings().Text(kDetails, name) == value; });
  }

  HWND form_ = nullptr;
  HWND preview_ = nullptr;
};

TEST_F(Printing, AFivePageNoteComesOutAsItIsShown) {
  const FilePrinter printer(root().folder());
  ASSERT_TRUE(printer.ready());
  WithoutTexts();
  OpenNote(42);
  ASSERT_SOON(PageCount() == 5) << PageCount();
  const auto shown = ShownPages();
  HWND dialog = PrintDialogOf();
  ASSERT_TRUE(dialog);
  ASSERT_TRUE(CloseDialog(dialog, IDOK));
  ASSERT_TRUE(Printed(L"5 pages were sent to"));
  const auto printed = PrintedPages(printer.output());
  ASSERT_EQ(printed.size(), shown.size());
  for (std::size_t page = 0; page < shown.size(); ++page) {
    ASSERT_EQ(printed[page].size(), shown[page].size()) << "page " << page + 1;
    for (std::size_t line = 0; line < shown[page].size(); ++line) {
      EXPECT_EQ(printed[page][line], shown[page][line]) << page + 1 << ", line " << line + 1;
    }
  }
}

TEST_F(Printing, APictureAndFormatsStandWhereTheyAreShown) {
  const FilePrinter printer(root().folder());
  ASSERT_TRUE(printer.ready());
  root().settings().SetText(kDetails, L"Zoom", L"75 %");
  root().settings().SetText(kDetails, L"Thumbs", L"0");
  OpenNote(FormatsNote());
  HWND sheets = Control(preview_, picSHEETS);
  // Once the sheet is painted; until then all is dark.
  Picture shown;
  ASSERT_SOON((shown = StillPictureOf(sheets))
                  .CountNear({0, 0, shown.size().width, shown.size().height}, RGB(255, 255, 255)) >
              100'000);
  HWND dialog = PrintDialogOf();
  ASSERT_TRUE(dialog);
  ASSERT_TRUE(CloseDialog(dialog, IDOK));
  ASSERT_TRUE(Printed(L"1 page was sent to"));
  // 75 % of a screen's 96 dots to the inch.
  const Picture page = Picture::FromFile(PictureOfPage(printer.output(), 1, 72));
  // The sheet's corner: the first white below the ruler, right of the other one.
  constexpr int kBelow = 45;
  Point corner{21, kBelow};
  while (corner.x < shown.size().width && shown.At(corner) != RGB(255, 255, 255)) ++corner.x;
  while (corner.y > 21 && shown.At({corner.x + 4, corner.y - 1}) == RGB(255, 255, 255)) --corner.y;
  constexpr int kSide = 18;
  int inked = 0;
  const int bottom = std::min(shown.size().height - 40 - corner.y, page.size().height);
  const int right = std::min(shown.size().width - 30 - corner.x, page.size().width);
  for (int y = 0; y + kSide <= bottom; y += kSide) {
    for (int x = 0; x + kSide <= right; x += kSide) {
      const int on_paper = Darkness(page, {x, y}, kSide);
      inked += on_paper > 20;
      EXPECT_NEAR(Darkness(shown, {corner.x + x, corner.y + y}, kSide), on_paper, 40)
          << x << ", " << y;
    }
  }
  EXPECT_GT(inked, 60);
  if (artifacts().empty()) return;
  shown.Save(artifacts() + L"\\shown-formats.bmp");
  page.Save(artifacts() + L"\\printed-formats.bmp");
}

TEST_F(Printing, WithoutAPrinterThePreviewWorksAndSaysSo) {
  OpenNote(30);
  EXPECT_SOON(Status().find(L"There is no printer") != std::wstring::npos);
  HWND message = PrintDialogOf();
  ASSERT_TRUE(message);
  EXPECT_NE(DialogText(message).find(L"There is no printer on this computer"), std::wstring::npos);
  EXPECT_TRUE(CloseDialog(message, IDOK));
  HWND sheets = Control(preview_, picSHEETS);
  RECT client = {};
  EXPECT_TRUE(::GetClientRect(sheets, &client) && client.right < RectOf(sheets).width());
  ASSERT_TRUE(ClickOn(sheets));
  PressKey(VK_END);
  EXPECT_SOON_EQ(Page(), NumberText(PageCount()));
  PressKey(VK_HOME);
  EXPECT_SOON_EQ(Page(), L"1");
  PressKey(VK_NEXT);
  EXPECT_SOON_EQ(Page(), L"2");
  Chord({VK_CONTROL, '2'});
  EXPECT_SOON_EQ(Text(Control(preview_, cboZOOM)), L"Page width");
  Chord({VK_CONTROL, '1'});
  EXPECT_SOON_EQ(Text(Control(preview_, cboZOOM)), L"100 %");
  Chord({VK_CONTROL, VK_OEM_PLUS});
  EXPECT_SOON_EQ(Text(Control(preview_, cboZOOM)), L"110 %");
  {
    const HeldKeys ctrl{VK_CONTROL};
    TurnWheel(CentreOf(Control(preview_, picSHEETS)), -2);
  }
  EXPECT_SOON_EQ(Text(Control(preview_, cboZOOM)), L"90 %");
  EXPECT_EQ(Page(), L"2");
  Chord({VK_CONTROL, 'G'});
  Type(L"1\n");
  EXPECT_SOON_EQ(Page(), L"1");
  ASSERT_TRUE(ClickOn(Control(preview_, picSHEETS)));
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(WaitForNoForm(program(), L"frmNOTpp"));
  EXPECT_TRUE(Kept(L"Zoom", L"90 %"));
}

TEST_F(Printing, MarginsAreDraggedAndTypedAndLeaveAColumn) {
  root().settings().SetText(kDetails, L"Margin-Left", L"nonsense");
  WithoutTexts();
  OpenNote(42);
  ASSERT_TRUE(ClickOn(Control(preview_, cmdLASTPAGE)));
  const std::wstring looked_at = NumberText(PageCount());
  ASSERT_SOON(Page() == looked_at);
  // What follows makes more pages, never less.
  const auto stays = [&] {
    return Page() == looked_at && !LinesOf(Text(Control(preview_, picSHEETS))).empty();
  };
  HWND left = Control(preview_, txtMARGIN);
  const std::wstring before = Text(left);
  EXPECT_EQ(before, Text(Control(preview_, txtMARGIN + 2)));
  const Rect sheets = RectOf(Control(preview_, picSHEETS));
  // The end of the margin is where the ruler is marked by the system's colour.
  const COLORREF mark = ::GetSysColor(COLOR_HIGHLIGHT);
  int at = 0;
  ASSERT_SOON([&] {
    const Picture still = StillPictureOf(Control(preview_, picSHEETS));
    for (at = 0; at < still.size().width && still.At({at, 10}) != mark;) ++at;
    return at < still.size().width;
  }());
  Drag({sheets.left + at + 1, sheets.top + 10}, {sheets.left + at + 41, sheets.top + 10});
  EXPECT_SOON(Text(left) != before);
  EXPECT_SOON(root().settings().Text(kDetails, L"Margin-Left") != L"nonsense");
  EXPECT_TRUE(stays()) << "the page that is looked at while it is dragged";
  ASSERT_TRUE(ClickOn(left));
  Chord({VK_CONTROL, 'A'});
  SetText(left, L"40 cm");
  PressKey(VK_RETURN);
  // A page of 8.5 inches or 210 mm keeps 20 mm beside the other margin.
  EXPECT_SOON(Text(left) == L"6.96 in" || Text(left) == L"170 mm");
  EXPECT_TRUE(stays());
  SetText(left, L"wide");
  PressKey(VK_RETURN);
  EXPECT_SOON(Text(left) == L"6.96 in" || Text(left) == L"170 mm");
  SetText(Control(preview_, txtTEXTS), L"Head");
  EXPECT_SOON(Text(Control(preview_, picSHEETS)).find(L"Head") != std::wstring::npos);
  EXPECT_TRUE(stays());
}

TEST_F(Printing, PaperOfAnOwnSizeIsTyped) {
  OpenNote(8);
  const int before = PageCount();
  HWND papers = Control(preview_, cboPAPER);
  ASSERT_TRUE(papers);
  EXPECT_FALSE(IsEnabled(Control(preview_, txtPAPERSIZE)));
  ASSERT_TRUE(Select(papers, static_cast<int>(Items(papers).size()) - 1));
  ASSERT_SOON(IsEnabled(Control(preview_, txtPAPERSIZE)));
  for (const int side : {0, 1}) {
    ASSERT_TRUE(ClickOn(Control(preview_, txtPAPERSIZE + side)));
    SetText(Control(preview_, txtPAPERSIZE + side), L"144 mm");
    PressKey(VK_RETURN);
  }
  // In twips, give or take what the user's unit leaves out.
  const auto height = [this] {
    return WholeNumber(root().settings().Text(kDetails, L"Paper-Height").value_or(L"0"));
  };
  EXPECT_SOON(std::abs(height().value_or(0) - 8164) < 20);
  EXPECT_SOON(PageCount() > before);
}

TEST_F(Printing, RangesAndCopiesAreTakenAndPrintingIsCancelled) {
  const FilePrinter printer(root().folder());
  ASSERT_TRUE(printer.ready());
  WithoutTexts();
  OpenNote(42);
  ASSERT_SOON(PageCount() == 5);
  const auto shown = ShownPages();
  AnswerPrintDialog(L"2", L"3", L"2");
  ASSERT_TRUE(Printed(L"4 pages were sent to"));
  const auto printed = PrintedPages(printer.output());
  ASSERT_EQ(printed.size(), 4u);
  for (std::size_t side = 0; side < 4; ++side) EXPECT_EQ(printed[side], shown[1 + side % 2]);

  AnswerPrintDialog(L"1", L"5", L"40");
  ASSERT_SOON(Status().starts_with(L"Printing page"));
  EXPECT_FALSE(IsEnabled(Control(preview_, cmdPRINT)));
  ASSERT_TRUE(ClickOn(Control(preview_, picSHEETS)));
  PressKey(VK_ESCAPE);
  HWND question = WaitForDialog(program());
  ASSERT_TRUE(question);
  EXPECT_TRUE(CloseDialog(question, IDNO));
  EXPECT_TRUE(ClickOn(Control(preview_, cmdSTOPPRINT)));
  ASSERT_TRUE(Printed(L"Printing was cancelled after"));
  EXPECT_TRUE(IsEnabled(Control(preview_, cmdPRINT)));
}

TEST_F(Printing, APrinterThatFailsIsToldInPlainWords) {
  const FilePrinter printer(root().folder());
  ASSERT_TRUE(printer.ready());
  OpenNote(8);
  HWND dialog = PrintDialogOf();
  ASSERT_TRUE(dialog);
  // What it writes to cannot be written any more.
  ASSERT_TRUE(::CreateDirectoryW(printer.output().c_str(), nullptr));
  ASSERT_TRUE(CloseDialog(dialog, IDOK));
  HWND message = WaitForDialog(program());
  ASSERT_TRUE(message);
  EXPECT_NE(DialogText(message).find(printer.name()), std::wstring::npos) << DialogText(message);
  EXPECT_TRUE(CloseDialog(message, IDOK));
  EXPECT_SOON(IsEnabled(Control(preview_, cmdPRINT)));
}

TEST_F(Printing, AWhiteboardFillsThePage) {
  const FilePrinter printer(root().folder());
  ASSERT_TRUE(printer.ready());
  Image board(400, 300, 0xFFFFFFFF);
  board.Fill(Rect{100, 100, 300, 200}, 0xFF2060C0);
  WriteBytes(root().folder() + std::wstring(kWhiteboardFolder.below_program) + L"Blue" +
                 std::wstring(kBoardEnding),
             WriteBmp(board, BmpDepth::k24Bits));
  OpenPreview(L"Start-Load-Whiteboard", L"frmWBDwg", L"mnuWBOARDPRINT");
  EXPECT_EQ(PageCount(), 1);
  EXPECT_TRUE(IsEnabled(Control(preview_, optFITTED)));
  HWND dialog = PrintDialogOf();
  ASSERT_TRUE(dialog);
  ASSERT_TRUE(CloseDialog(dialog, IDOK));
  ASSERT_TRUE(Printed(L"1 page was sent to"));
  const Picture page = Picture::FromFile(PictureOfPage(printer.output(), 1, 36));
  ASSERT_GT(page.size().width, 200);
  if (!artifacts().empty()) page.Save(artifacts() + L"\\printed-board.bmp");
  const Rect whole{0, 0, page.size().width, page.size().height};
  const int blue = page.CountNear(whole, RGB(0x20, 0x60, 0xC0), 24);
  // A sixth of the picture, which is as wide as the column.
  const double column = page.size().width - 2 * 36 * 0.787;
  EXPECT_NEAR(blue, column * column * 0.75 / 6, column * column * 0.02);
}

}  // namespace
}  // namespace varnel
