// What programs that read the screen aloud hear of what the widgets draw themselves.
#include <gtest/gtest.h>
#include <oleacc.h>

#include "core/widget_index.h"
#include "resources/control_ids.h"
#include "tests/rig/reader.h"
#include "tests/rig/scene.h"
#include "win/system/com.h"

namespace varnel {
namespace {

using namespace rig;

class Reader : public Scene {
 protected:
  HWND Open(int index) {
    EXPECT_TRUE(ChooseShared(program(), L"mnuDCWIDGETS", index));
    return WaitForForm(program(), WidgetAt(index)->form_name);
  }

  ComApartment apartment_;
};

TEST_F(Reader, TilesAndButtonsTellNameRoleStateAndAct) {
  root().settings().SetText(L"frmCLKas\\Details", L"Alarm Preset Time_0", L"06:45:00");
  root().settings().SetText(L"frmCLKas\\Details", L"Alarm Preset Message_0", L"Get up");
  root().settings().SetText(L"frmCLKas\\Details", L"Alarm Preset Use_0", L"1");
  ASSERT_TRUE(program().Start());
  HWND manager = WaitForForm(program(), L"frmVRNwg");
  ASSERT_TRUE(manager);
  HWND tile = Control(manager, lblNUMBER);
  const auto closed = Hear(tile);
  ASSERT_TRUE(closed);
  EXPECT_EQ(closed->name, L"Clock");
  EXPECT_EQ(closed->description, L"");
  EXPECT_EQ(closed->role, ROLE_SYSTEM_PUSHBUTTON);
  EXPECT_EQ(closed->action, L"Press");
  EXPECT_EQ(closed->place, RectOf(tile));
  EXPECT_TRUE(closed->state & STATE_SYSTEM_FOCUSABLE);

  ASSERT_TRUE(ActOn(tile));
  HWND clock = WaitForForm(program(), L"frmCLKwg");
  ASSERT_TRUE(clock);
  EXPECT_SOON_EQ(Hear(tile)->name, L"Clock (open)");
  EXPECT_EQ(Hear(tile)->description, L"Next alarm 06:45 \x2013 Get up");
  EXPECT_EQ(Hear(Control(clock, lablTBARTOP + 2))->name, L"Close");
  const auto time = Hear(Control(clock, lblPANECLOCK));
  EXPECT_EQ(time->role, ROLE_SYSTEM_STATICTEXT);
  EXPECT_EQ(time->name, Text(Control(clock, lblPANECLOCK)));
  ASSERT_TRUE(ActOn(Control(clock, lablTBARTOP + 2)));
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKwg"));
}

TEST_F(Reader, PensAndTheMonthsDaysAreHeard) {
  ASSERT_TRUE(program().Start());
  ASSERT_TRUE(WaitForForm(program(), L"frmVRNwg"));
  HWND calendar = Open(2);
  ASSERT_TRUE(calendar);
  ::SetWindowPos(calendar, nullptr, 20, 20, 620, 440, SWP_NOZORDER);
  Send(calendar, WM_NULL);
  HWND red = Control(calendar, cmdPEN + 1);
  EXPECT_EQ(Hear(red)->name, Text(red));
  EXPECT_FALSE(Hear(red)->state & STATE_SYSTEM_PRESSED);
  ASSERT_TRUE(ActOn(red));
  EXPECT_SOON(Hear(red)->state & STATE_SYSTEM_PRESSED);

  HWND board = Control(calendar, picMAINBOARD);
  EXPECT_EQ(Hear(board)->role, ROLE_SYSTEM_TABLE);
  ASSERT_EQ(HeardParts(board), 42);
  int today = 0;
  Rect former;
  for (int day = 1; day <= 42; ++day) {
    const auto heard = Hear(board, day);
    ASSERT_TRUE(heard);
    EXPECT_EQ(heard->role, ROLE_SYSTEM_CELL);
    EXPECT_NE(heard->name.find(L", week "), std::wstring::npos) << day;
    EXPECT_TRUE(heard->place.top > former.top || heard->place.left > former.left) << day;
    former = heard->place;
    if (heard->state & STATE_SYSTEM_SELECTED) {
      EXPECT_TRUE(heard->name.ends_with(L" - today"));
      ++today;
    }
  }
  EXPECT_EQ(today, 1);
  EXPECT_FALSE(Hear(board, 43)) << "a day more than there are";
}

}  // namespace
}  // namespace varnel
