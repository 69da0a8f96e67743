#include "frame/side_list_win.h"

#include <gtest/gtest.h>

#include "tests/window/drawing_objects.h"
#include "win/windows/window.h"

namespace varnel {
namespace {

class ListOwner : public Window, public SideListOwner {
 public:
  ListOwner(Ui& ui, SideListKind kind) : Window(ui), list(ui, *this) {
    Creation creation;
    creation.class_name = L"VarnelListOwner";
    creation.style = WS_POPUP | WS_VISIBLE;
    creation.place = {0, 0, 300, 200};
    EXPECT_TRUE(Create(creation) && list.Load(handle(), 1, L"Rows", kind));
  }

  std::wstring RowText(std::size_t row) const override { return std::to_wstring(row); }
  std::wstring EmptyText() const override { return L"Nothing yet"; }
  void PaintRow(Surface& surface, const SideRow& row) override {
    PaintRowGround(surface, row);
    painted.push_back(row.box.height());
  }
  void OnRowChosen(std::size_t row) override { chosen.push_back(row); }
  void OnRowRenamed(std::size_t row, const std::wstring& text) override {
    renamed = std::to_wstring(row) + L" to " + text;
  }
  void PaintNow() {
    painted.clear();
    ::RedrawWindow(handle(), nullptr, nullptr, RDW_ALLCHILDREN | RDW_INVALIDATE | RDW_UPDATENOW);
  }

  SideList list;
  std::vector<int> painted;  // the heights of the rows
  std::vector<std::size_t> chosen;
  std::wstring renamed;

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == WM_NOTIFY) return list.OnNotify(*reinterpret_cast<NMHDR*>(lparam));
    return Window::OnMessage(message, wparam, lparam);
  }
};

class SideListTest : public ::testing::Test {
 protected:
  Ui ui_{::GetModuleHandleW(nullptr), {}, {}};
};

TEST_F(SideListTest, ListsShownLeaveNothingBehind) {
  ListOwner owner(ui_, SideListKind::kLog);
  const auto show = [&](int i) {
    SideListLook look;
    look.text.font = {L"Tahoma", 10 + i % 20, false};
    look.text.ground = i * 15'485;
    look.row_height = i % 3 * 20;
    owner.list.Place({10, 10, 100 + i % 190, 190}, look);
    owner.list.ShowRows(static_cast<std::size_t>(i), static_cast<std::size_t>(i));
    owner.list.Select(static_cast<std::size_t>(i / 2));
    owner.PaintNow();
    ui_.fonts.Trim(0);
  };
  for (int i = 0; i < 40; ++i) show(i);
  const int before = test::FreeDrawingObjects();
  for (int i = 0; i < 100; ++i) show(i);
  // The list view keeps a few of its own.
  EXPECT_NEAR(test::FreeDrawingObjects(), before, 20);
  EXPECT_EQ(owner.list.Selected(), std::vector<std::size_t>{49});
}

TEST_F(SideListTest, OnlyRowsInSightArePaintedAndAllAsHighAsAsked) {
  ListOwner owner(ui_, SideListKind::kDocuments);
  SideListLook look;
  look.row_height = 50;
  owner.list.Place({0, 0, 200, 160}, look);
  owner.list.ShowRows(10'000, 0);
  owner.PaintNow();
  EXPECT_EQ(owner.painted, (std::vector<int>{50, 50, 50}));
  owner.list.Select(9'000);
  owner.list.ShowRows(20'000, 9'000);
  EXPECT_EQ(owner.list.Selected(), std::vector<std::size_t>{9'000});
  EXPECT_EQ(owner.chosen, std::vector<std::size_t>{});
}

TEST_F(SideListTest, AnEmptyListSaysSo) {
  ListOwner owner(ui_, SideListKind::kDocuments);
  SideListLook look;
  look.text.ground = kWhite;
  owner.list.Place({0, 0, 200, 160}, look);
  const auto written = [&](std::size_t rows) {
    owner.list.ShowRows(rows, 0);
    ::UpdateWindow(owner.list.handle());
    HDC dc = ::GetDC(owner.list.handle());
    int dark = 0;
    for (int x = 0; x < 180; ++x) {
      for (int y = 2; y < 20; ++y) dark += ::GetPixel(dc, x, y) != RGB(255, 255, 255);
    }
    ::ReleaseDC(owner.list.handle(), dc);
    return dark > 20;
  };
  EXPECT_TRUE(written(0));
  EXPECT_FALSE(written(1));
  EXPECT_TRUE(written(0));
}

TEST_F(SideListTest, ARowIsRenamedInPlace) {
  ListOwner owner(ui_, SideListKind::kDocuments);
  owner.list.Place({0, 0, 200, 160}, {});
  owner.list.ShowRows(5, 0);
  owner.list.Rename(3);
  HWND box = ListView_GetEditControl(owner.list.handle());
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(owner.list.renaming() && owner.list.HasFocus());
  ::SetWindowTextW(box, L"three");
  ::SendMessageW(box, WM_KEYDOWN, VK_RETURN, 0);
  EXPECT_EQ(owner.renamed, L"3 to three");
  owner.list.Rename(2);
  ::SendMessageW(ListView_GetEditControl(owner.list.handle()), WM_KEYDOWN, VK_ESCAPE, 0);
  EXPECT_EQ(owner.renamed, L"3 to three");
  EXPECT_FALSE(owner.list.renaming());
}

}  // namespace
}  // namespace varnel
