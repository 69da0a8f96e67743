#include "theme/text_field_win.h"

#include <random>

#include "tests/rig/controls.h"
#include "tests/window/window_aid.h"

namespace varnel {
namespace {

class TextFieldTest : public test::Hosted {
 protected:
  TextFieldTest() {
    host_.on_message = [this](UINT message, WPARAM wparam, LPARAM lparam) {
      if (TextField::OnParentMessage(message, wparam, lparam)) return true;
      changes_ += message == WM_COMMAND && HIWORD(wparam) == EN_CHANGE;
      return false;
    };
    ::SetFocus(host_.handle());
  }
  void Paste(const wchar_t* text) {
    ::SendMessageW(field_.handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
  }
  void Click(int x) {
    const LPARAM at = MAKELPARAM(x, 10);
    ::SendMessageW(field_.handle(), WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(host_.handle()),
                   MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    ::SendMessageW(field_.handle(), WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::SendMessageW(field_.handle(), WM_LBUTTONUP, 0, at);
  }
  std::pair<int, int> Selection() const { return rig::SelectedUnits(field_.handle()); }

  TextField field_;
  TextStyle style_{.font = {L"Tahoma", 20, false}};
  int changes_ = 0;  // that the form was told of
};

TEST_F(TextFieldTest, TakesDigitsOnlyAndTellsOnlyWhatTheUserChanges) {
  ASSERT_TRUE(field_.Load(host_.handle(), 7, {.most = 8, .digits_only = true}));
  field_.SetText(L"12");
  EXPECT_EQ(changes_, 0);
  EXPECT_EQ(Selection(), std::pair(2, 2));
  Paste(L"-4 \x0664x5");
  EXPECT_EQ(field_.text(), L"1245");
  EXPECT_EQ(changes_, 1);
  Paste(L"67890");
  EXPECT_EQ(field_.text(), L"12456789");
  EXPECT_EQ(changes_, 2);
}

TEST_F(TextFieldTest, TheClickThatBringsTheFocusChoosesTheWhole) {
  for (const bool whole : {true, false}) {
    TextField other;
    ASSERT_TRUE(field_.Load(host_.handle(), 7, {.most = 20, .chosen_whole = whole}));
    ASSERT_TRUE(other.Load(host_.handle(), 8, {.most = 20}));
    field_.Place({0, 0, 200, 30}, style_);
    field_.SetText(L"123456");
    Click(190);
    EXPECT_EQ(Selection(), whole ? std::pair(0, 6) : std::pair(6, 6));
    Click(190);
    EXPECT_EQ(Selection(), std::pair(6, 6)) << "the caret where it was clicked";
    ::SetFocus(other.handle());
    ::SetFocus(field_.handle());
    EXPECT_EQ(Selection(), whole ? std::pair(0, 6) : std::pair(6, 6));
    ::SetFocus(host_.handle());
    ::DestroyWindow(field_.handle());
    EXPECT_EQ(field_.handle(), nullptr);
  }
}

TEST_F(TextFieldTest, WhatItHoldsIsSeenAgainOnceThereIsRoom) {
  ASSERT_TRUE(field_.Load(host_.handle(), 7, {.most = 20}));
  field_.SetText(L"123456");
  for (const int width : {200, 4, 200, 0, 200}) {
    field_.Place({0, 0, width, 30}, style_);
    EXPECT_EQ(::IsWindowVisible(field_.handle()) != FALSE, width > 0);
    if (width < 200) continue;
    EXPECT_GE(static_cast<short>(LOWORD(::SendMessageW(field_.handle(), EM_POSFROMCHAR, 0, 0))), 0);
    EXPECT_EQ(Selection(), std::pair(6, 6));
  }
}

TEST_F(TextFieldTest, CanBeReadOnAnyGround) {
  ASSERT_TRUE(field_.Load(host_.handle(), 7, {.most = 20}));
  const UniqueDc dc(::CreateCompatibleDC(nullptr));
  std::mt19937 random(9);
  for (int round = 0; round < 60; ++round) {
    style_.ground = static_cast<Colour>(random() & 0xFFFFFF);
    style_.colour = round % 2 ? style_.ground : static_cast<Colour>(random() & 0xFFFFFF);
    style_.theme = static_cast<Colour>(random() & 0xFFFFFF);
    field_.Place({0, 0, 200, 30}, style_);
    const auto brush =
        TextField::OnParentMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.get()),
                                   reinterpret_cast<LPARAM>(field_.handle()));
    ASSERT_TRUE(brush && *brush);
    EXPECT_EQ(::GetBkColor(dc.get()), static_cast<COLORREF>(style_.ground));
    EXPECT_GE(ContrastRatio(static_cast<Colour>(::GetTextColor(dc.get())), style_.ground),
              kReadableContrast);
  }
  EXPECT_FALSE(TextField::OnParentMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.get()),
                                          reinterpret_cast<LPARAM>(host_.handle())));
}

}  // namespace
}  // namespace varnel
