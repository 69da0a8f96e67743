// The editor for formatted text: what its owner is promised beyond what the system's control does.
#include "win/rich/rich_edit.h"

#include <random>

#include "tests/rig/input.h"
#include "tests/window/window_aid.h"
#include "win/rich/rich_guard.h"
#include "win/system/clipboard.h"

namespace varnel {
namespace {

constexpr int kEditId = 7;

class Editor : public test::Hosted {
 protected:
  Editor() {
    host_.on_message = [this](UINT message, WPARAM wparam, LPARAM lparam) {
      if (message == WM_NOTIFY) edit_.OnNotify(*reinterpret_cast<NMHDR*>(lparam));
      if (message == WM_COMMAND) edit_.OnCommand(HIWORD(wparam));
      return message == WM_NOTIFY || message == WM_COMMAND;
    };
    EXPECT_TRUE(edit_.Create(host_.handle(), kEditId, WS_VISIBLE | WS_VSCROLL, kPlain));
    ::MoveWindow(edit_.handle(), 0, 0, 640, 440, TRUE);
  }

  std::wstring All() const { return edit_.Units({0, edit_.Length()}); }

  inline static const CharacterFormat kPlain = {
      .bold = false, .italic = false, .half_points = 24, .colour = TextColour{}, .face = L"Tahoma"};

  int changes_ = 0;
  int pastes_ = 0;
  std::vector<RichRange> selections_;
  std::vector<std::wstring> files_;
  RichEdit edit_{{.on_change = [this] { ++changes_; },
                  .on_select = [this](RichRange range) { selections_.push_back(range); },
                  .on_link = {},
                  .on_paste = [this] { ++pastes_; },
                  .on_copy = {},
                  .on_files = [this](auto paths, int) { files_ = paths; },
                  .may_drop = {},
                  .on_zoom = {}}};
};

TEST_F(Editor, TextAndFormattedTextGoInAndComeOut) {
  EXPECT_EQ(edit_.DefaultFormat().bold, false);
  ASSERT_TRUE(edit_.PutText(L"one\r\ntw\x00f6 \x4e2d\nthree"));
  EXPECT_EQ(All(), L"one\rtw\x00f6 \x4e2d\rthree");
  EXPECT_EQ(edit_.Text(), L"one\r\ntw\x00f6 \x4e2d\r\nthree");
  EXPECT_EQ(edit_.SelectionFormat().face, L"Tahoma");
  edit_.Select({4, 7});
  EXPECT_EQ(edit_.Text(RichEdit::Scope::kSelection), L"tw\x00f6");
  edit_.SetFormat({.bold = true});
  const std::string part = edit_.Rtf(RichEdit::Scope::kSelection);
  edit_.Select({0, 0});
  ASSERT_TRUE(edit_.PutRtf(part, RichEdit::Scope::kSelection));
  EXPECT_TRUE(All().starts_with(L"tw\x00f6"));
  edit_.Select({0, 2});
  EXPECT_EQ(edit_.SelectionFormat().bold, true);
  EXPECT_FALSE(edit_.PutRtf("no formatted text")) << "said, not swallowed";
  EXPECT_FALSE(edit_.PutRtf("{\\rtf1 cut {\\b o"));
  std::wstring longer;
  while (longer.size() < 100'000) longer += L"a line of no great interest\r\n";
  ASSERT_TRUE(edit_.PutText(longer));
  EXPECT_EQ(edit_.Text(), longer) << "there is no limit";
}

TEST_F(Editor, FormatsAreReadBackAndMixedOnesAreEmpty) {
  edit_.PutText(L"plain and other");
  const CharacterFormat other = {.bold = true,
                                 .italic = true,
                                 .underline = true,
                                 .strikeout = true,
                                 .link = false,
                                 .half_points = 37,
                                 .offset = 27,
                                 .script = TextScript::kLowered,
                                 .colour = TextColour{false, RGB(1, 2, 3)},
                                 .ground = TextColour{false, RGB(250, 250, 0)},
                                 .face = L"Courier New"};
  edit_.Select({10, 15});
  edit_.SetFormat(other);
  EXPECT_EQ(edit_.SelectionFormat(), other);
  edit_.SelectAll();
  const CharacterFormat mixed = edit_.SelectionFormat();
  EXPECT_FALSE(mixed.bold || mixed.half_points || mixed.script || mixed.colour || mixed.face);
  edit_.SetFormat({.half_points = 20});
  edit_.Select({10, 15});
  EXPECT_EQ(edit_.SelectionFormat().bold, true) << "what is not named stays";
}

TEST_F(Editor, ParagraphsAreReadBack) {
  edit_.PutText(L"one\rtwo");
  edit_.UseAdvancedTypography();
  const RichParagraph format = {.alignment = RichAlignment::kJustified,
                                .start_indent = 720,
                                .offset = 360,
                                .right_indent = 144,
                                .space_before = 100,
                                .space_after = 200,
                                .line_spacing = LineSpacing{5, 23},
                                .numbering = RichNumbering::kBullets,
                                .numbering_start = 1,
                                .tabs = std::vector<int>{700, 1400}};
  edit_.Select({5, 5});
  edit_.SetParagraph(format);
  EXPECT_EQ(edit_.SelectionParagraph(), format);
  edit_.SelectAll();
  EXPECT_FALSE(edit_.SelectionParagraph().alignment) << "mixed";
}

TEST_F(Editor, OwnerIsToldOfChangesUnlessItMakesThemQuietly) {
  edit_.PutText(L"first");
  EXPECT_GT(changes_, 0);
  edit_.Select({1, 3});
  EXPECT_EQ(selections_.back(), (RichRange{1, 3}));
  EXPECT_EQ(edit_.Caret(), 3);
  edit_.Select({0, 3});
  EXPECT_EQ(edit_.Caret(), 0) << "grown to the left";
  changes_ = 0;
  const std::size_t told = selections_.size();
  {
    const RichEdit::Quietly outer(edit_);
    const RichEdit::Quietly inner(edit_);
    edit_.PutText(L"second");
    edit_.Select({2, 2});
  }
  EXPECT_EQ(changes_, 0);
  EXPECT_EQ(selections_.size(), told);
  edit_.Replace(L"x");
  EXPECT_EQ(changes_, 1);
}

TEST_F(Editor, NothingIsPastedOrDroppedBehindItsOwner) {
  ASSERT_TRUE(CopyContent(host_.handle(), {L"text", "{\\rtf1 text}"}));
  ::SendMessageW(edit_.handle(), WM_PASTE, 0, 0);
  ::SendMessageW(edit_.handle(), EM_PASTESPECIAL, CF_UNICODETEXT, 0);
  EXPECT_EQ(pastes_, 2);
  ::SetForegroundWindow(host_.handle());
  ::SetFocus(edit_.handle());
  rig::Chord({VK_CONTROL, 'V'});
  rig::Chord({VK_SHIFT, VK_INSERT});
  EXPECT_TRUE(test::RunMessagesUntil([this] { return pastes_ == 4; }));
  EXPECT_EQ(All(), L"");
  const std::wstring path(L"C:\\a.txt\0", 10);
  HGLOBAL memory = ::GlobalAlloc(GHND, 20 + path.size() * sizeof(wchar_t));
  auto* record = static_cast<DWORD*>(::GlobalLock(memory));
  record[0] = 20;    // where the names begin
  record[4] = TRUE;  // in UTF-16
  std::ranges::copy(path, reinterpret_cast<wchar_t*>(record + 5));
  ::GlobalUnlock(memory);
  ::SendMessageW(edit_.handle(), WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
  EXPECT_EQ(files_, std::vector<std::wstring>{L"C:\\a.txt"});
  EXPECT_EQ(All(), L"");
  const auto guard = MakeRichGuard({});
  CLSID sheet = {0x00020820, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
  EXPECT_NE(guard->QueryInsertObject(&sheet, nullptr, 0), S_OK) << "no object of other programs";
}

TEST_F(Editor, FindsAndTellsPlaces) {
  edit_.PutText(L"cat Cat concat\rcat");
  EXPECT_EQ(edit_.Find(L"cat", {1, 18}, {}), (RichRange{4, 7}));
  EXPECT_EQ(edit_.Find(L"cat", {1, 18}, {.match_case = true}), (RichRange{11, 14}));
  EXPECT_EQ(edit_.Find(L"cat", {5, 18}, {.whole_words = true}), (RichRange{15, 18}));
  EXPECT_EQ(edit_.Find(L"cat", {0, 14}, {.backwards = true}), (RichRange{11, 14}));
  EXPECT_TRUE(edit_.Find(L"dog", {0, 18}, {}).empty());
  EXPECT_EQ(edit_.LineOf(16), 1);
  EXPECT_EQ(edit_.LineStart(1), 15);
  EXPECT_EQ(edit_.LineCount(), 2);
  const Point there = edit_.PointOf(8);
  EXPECT_EQ(edit_.PositionAt({there.x + 1, there.y + 4}), 8);
  EXPECT_EQ(edit_.Zoom(), 100);
  edit_.SetZoom(150);
  EXPECT_EQ(edit_.Zoom(), 150);
  edit_.SetZoom(100);
  EXPECT_EQ(edit_.PointOf(8), there);
}

TEST_F(Editor, StepsAreUndoneAndDoneAgainAsAModelHasThem) {
  std::minstd_rand random(11);
  std::vector<std::wstring> states = {L""};
  for (int i = 0; i < 150; ++i) {
    const int length = edit_.Length();
    const int from = length ? static_cast<int>(random() % static_cast<unsigned>(length)) : 0;
    const int to = std::min(length, from + static_cast<int>(random() % 4));
    const std::wstring text = i % 5 == 4 ? L"\r" : std::wstring(1 + i % 3, L'a' + i % 26);
    edit_.Select({from, to});
    edit_.Replace(text);
    states.push_back(states.back());
    states.back().replace(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from),
                          text);
    ASSERT_EQ(All(), states.back());
  }
  for (std::size_t i = states.size() - 1; i-- > 0;) {
    ASSERT_TRUE(edit_.CanUndo()) << i;
    edit_.Undo();
    ASSERT_EQ(All(), states[i]) << i;
  }
  while (edit_.CanRedo()) edit_.Redo();
  EXPECT_EQ(All(), states.back());
  edit_.ForgetUndo();
  EXPECT_FALSE(edit_.CanUndo());
}

SharedMetafile Look() {
  Image image(40, 30, 0xFF00FF00);
  return std::make_shared<UniqueMetafile>(MetafileOf(image));
}

TEST_F(Editor, PicturesAreShownSavedAndUndone) {
  edit_.PutText(L"ab");
  edit_.ForgetUndo();
  const SharedMetafile look = Look();
  for (const int position : {2, 1}) {
    edit_.Select({position, position});
    ASSERT_TRUE(edit_.InsertPicture(look, {1058, 794}, 100u + static_cast<unsigned>(position)));
  }
  EXPECT_EQ(edit_.Length(), 4);
  const auto expect_both = [this] {
    const std::vector<RichPicture> pictures = edit_.Pictures();
    ASSERT_EQ(pictures.size(), 2u);
    EXPECT_EQ(pictures[0].position, 1);
    EXPECT_EQ(pictures[0].id, 101u);
    EXPECT_EQ(pictures[1].position, 3);
    EXPECT_EQ(pictures[1].id, 102u);
    EXPECT_EQ(pictures[1].size, (Size{1058, 794}));
  };
  expect_both();
  const std::string rtf = edit_.Rtf();
  const std::size_t first = rtf.find("emfblip");
  EXPECT_NE(first, std::string::npos);
  EXPECT_NE(rtf.find("emfblip", first + 1), std::string::npos);
  EXPECT_TRUE(rtf.ends_with('}') || rtf.ends_with("}\r\n")) << rtf.substr(rtf.size() - 10);
  ::RedrawWindow(edit_.handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  const Point corner = edit_.PointOf(1);
  HDC screen = ::GetDC(edit_.handle());
  EXPECT_EQ(::GetPixel(screen, corner.x + 10, corner.y + 10), RGB(0, 255, 0));
  ::ReleaseDC(edit_.handle(), screen);
  edit_.Undo();
  EXPECT_EQ(edit_.Pictures().size(), 1u);
  // A control that cannot bring a picture back must not offer it.
  edit_.Redo();
  if (edit_.Pictures().size() == 1) ASSERT_TRUE(edit_.InsertPicture(look, {1058, 794}, 101));
  expect_both();
  edit_.Select({0, 2});
  edit_.Replace(L"");
  EXPECT_EQ(edit_.Pictures().size(), 1u);
  if (!edit_.CanUndo()) return;
  edit_.Undo();
  expect_both();
}

TEST_F(Editor, AThousandPicturesLeaveNothingBehind) {
  const SharedMetafile look = Look();
  {
    RichEdit edit{{}};
    ASSERT_TRUE(edit.Create(host_.handle(), kEditId + 1, 0, kPlain));
    for (unsigned i = 0; i < 1000; ++i) {
      ASSERT_TRUE(edit.InsertPicture(look, {500, 500}, i));
      if (i % 3 == 0) edit.Undo();
      if (i % 50 == 20) edit.PutText(L"");
    }
    EXPECT_GT(look.use_count(), 1);
  }
  EXPECT_EQ(look.use_count(), 1);
}

TEST_F(Editor, WhatIsDroppedGetsInOnlyAsItsOwnerSays) {
  struct Case {
    ClipboardContent dropped;
    RtfGate gate;
    UINT taken;  // 0: nothing is
  };
  const ClipboardContent both{L"text", R"({\rtf1 text})"};
  const auto says = [](bool answer) { return [answer](const std::string&) { return answer; }; };
  const auto fails = [](const std::string&) -> bool { throw std::runtime_error("no memory"); };
  const Case cases[] = {{both, says(true), RtfFormat()},
                        {both, says(false), CF_UNICODETEXT},
                        {both, {}, CF_UNICODETEXT},
                        {both, fails, 0},
                        {{L"text", {}}, fails, CF_UNICODETEXT},
                        {{{}, both.rtf}, says(false), 0}};
  for (const Case& drop : cases) {
    ASSERT_TRUE(CopyContent(host_.handle(), drop.dropped));
    ComPointer<IDataObject> data;
    ASSERT_EQ(::OleGetClipboard(data.Receive()), S_OK);
    CLIPFORMAT format = 0;
    const HRESULT answer =
        MakeRichGuard(drop.gate)->QueryAcceptData(data.get(), &format, RECO_DROP, TRUE, nullptr);
    EXPECT_EQ(answer, drop.taken ? S_OK : E_ACCESSDENIED) << &drop - cases;
    EXPECT_EQ(format, drop.taken) << &drop - cases;
  }
}

}  // namespace
}  // namespace varnel
