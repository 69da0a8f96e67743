// How the widgets look at any size: nothing on top of anything else, and nothing left of what was
// shown before.
#include <gtest/gtest.h>

#include "base/text.h"
#include "core/core_settings.h"
#include "core/widget_index.h"
#include "tests/rig/scene.h"
#include "tests/rig/screen_dpi.h"
#include "tests/support/boxes.h"

namespace varnel {
namespace {

using namespace rig;

void Resize(HWND form, Size size) {
  ::SetWindowPos(form, nullptr, 10, 10, size.width, size.height, SWP_NOZORDER);
  // It has laid itself out once it answers.
  Send(form, WM_NULL);
}

std::string NameOf(HWND control) {
  return Utf8FromWide(ClassOf(control)) + " " + std::to_string(::GetDlgCtrlID(control));
}

// The controls that are shown stand beside each other, inside their form.
void CheckControls(HWND form) {
  const Rect inside = RectOf(form);
  std::vector<HWND> shown;
  for (HWND control : ChildrenOf(form)) {
    const Rect box = RectOf(control);
    if (!IsShown(control) || box.empty() || ::GetParent(control) != form) continue;
    // It hides the bar of the list that it belongs to.
    if (ClassOf(control) == L"VarnelThumbBar") continue;
    EXPECT_TRUE(test::Inside(box, inside)) << NameOf(control) << " reaches beyond the form";
    for (HWND other : shown) {
      EXPECT_FALSE(test::Overlap(box, RectOf(other)))
          << NameOf(control) << " lies on " << NameOf(other);
    }
    shown.push_back(control);
  }
}

// The picture of a form that has painted all that it has to.
Picture PaintedPictureOf(HWND form) {
  Send(form, WM_NULL);
  ::RedrawWindow(form, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  return StillPictureOf(form);
}

// What is on the screen is what the form paints when all of it is painted anew.
bool IsWhole(HWND form) {
  const Picture before = PaintedPictureOf(form);
  ::RedrawWindow(form, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
  return PaintedPictureOf(form) == before;
}

void CheckPixels(HWND form, Size former, Size size) {
  if (IsWhole(form)) return;
  // What comes from outside (the weather, a list's pictures) may have come between the two
  // pictures; true remains come back each time.
  EXPECT_TRUE(WaitUntil([&] {
    Resize(form, former);
    PaintedPictureOf(form);
    Resize(form, size);
    return IsWhole(form);
  })) << "something is left of what was there";
}

class Look : public Scene {
 protected:
  // Opens every widget and looks at it in three sizes, written for 96 dpi.
  void LookAtAll(int dpi) {
    for (int i = 0; i < kWidgetCount; ++i) {
      const Setting& flag = WidgetAt(i)->start_load;
      root().settings().SetText(std::wstring(flag.section), std::wstring(flag.name), L"True");
    }
    ASSERT_TRUE(program().Start());
    ASSERT_TRUE(WaitForForm(program(), L"frmVRNwg"));
    for (int i = -1; i < kWidgetCount; ++i) {
      const std::wstring_view name = i < 0 ? kManagerForm.form_name : WidgetAt(i)->form_name;
      HWND form = FindForm(program(), name);
      if (!form) continue;
      ASSERT_TRUE(Activate(form));
      Size former{Scaled(393, dpi), Scaled(231, dpi)};
      for (const Size at_96 : {Size{160, 107}, {500, 350}, {240, 160}}) {
        const Size size{Scaled(at_96.width, dpi), Scaled(at_96.height, dpi)};
        SCOPED_TRACE(testing::Message() << Utf8FromWide(name) << " of " << size.width << " x "
                                        << size.height << " px");
        Resize(form, size);
        CheckControls(form);
        // The clock's seconds go on between two looks.
        if (i != 0) CheckPixels(form, former, size);
        former = size;
      }
    }
  }
};

TEST_F(Look, WidgetsAreWholeAtEverySize) {
  LookAtAll(kDefaultDpi);
}

TEST_F(Look, WidgetsAreWholeAtTwiceTheResolution) {
  const ScreenDpi dpi(192);
  LookAtAll(192);
}

}  // namespace
}  // namespace varnel
