// Painting over and over costs nothing that does not come back.
#include <gtest/gtest.h>

#include <vector>

#include "core/widget_index.h"
#include "tests/support/fake_program.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_settings.h"
#include "theme/system_colours_win.h"
#include "widgets/time/clock_form.h"
#include "win/local_time.h"
#include "win/sound.h"

namespace varnel {
namespace {

// How many drawing objects the process could still make: exact, where the system's own count is not
// to be had.
int FreeGraphicsObjects() {
  std::vector<HBRUSH> brushes;
  while (HBRUSH brush = ::CreateSolidBrush(static_cast<COLORREF>(brushes.size()))) {
    brushes.push_back(brush);
  }
  for (HBRUSH brush : brushes) ::DeleteObject(brush);
  return static_cast<int>(brushes.size());
}

class WidgetPaint : public ::testing::Test {
 protected:
  void Repaint() {
    ::RedrawWindow(form_.handle(), nullptr, nullptr,
                   RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  }

  Ui ui_{::GetModuleHandleW(nullptr), {}, {}};
  test::MemorySettings settings_;
  test::MemoryFiles files_;
  SystemClock clock_;
  SystemTimeFormatter formatter_;
  UserSystemColours colours_;
  FormRegistry forms_;
  test::FakeProgram program_;
  Sound sound_{nullptr};
  Services services_{ui_,    settings_, files_, clock_,  formatter_, colours_,
                     forms_, program_,  sound_, L"C:\\", {}};
  ClockForm form_{services_, *WidgetAt(0), 0};
};

TEST_F(WidgetPaint, ThousandRepaintsAndThemesLeaveNoObjectBehind) {
  ASSERT_TRUE(form_.Load());
  form_.Show(true);
  const auto change = [&](int round) {
    form_.theme().lngTHEMECOLOR = round * 7919 % 0xFFFFFF;
    form_.theme().lngTHEMECONTRAST = round % 256;
    form_.ApplyChrome();
    form_.Form_Resize();
    form_.WidgetRefresh();
    Repaint();
  };
  for (int i = 0; i < 20; ++i) change(i);  // fonts and caches
  const int before = FreeGraphicsObjects();
  for (int i = 0; i < 1000; ++i) Repaint();
  EXPECT_EQ(FreeGraphicsObjects(), before) << "repaints";
  for (int i = 0; i < 1000; ++i) change(i);
  EXPECT_EQ(FreeGraphicsObjects(), before) << "theme changes";
}

TEST_F(WidgetPaint, SizesComeAndGoWithoutLeakingFonts) {
  ASSERT_TRUE(form_.Load());
  form_.Show(true);
  const auto grow = [&] {
    for (int width = 2400; width < 15000; width += 300) {
      form_.SetSize(width, width * 10 / 17);
      Repaint();
    }
  };
  grow();
  const int before = FreeGraphicsObjects();
  for (int i = 0; i < 5; ++i) grow();
  // Fonts of the sizes seen may be kept, but only a bounded number of them.
  EXPECT_GE(FreeGraphicsObjects(), before - 250);
}

}  // namespace
}  // namespace varnel
