#include "widgets/boards/whiteboard.h"

#include <gtest/gtest.h>

#include "base/bmp.h"
#include "tests/support/boxes.h"
#include "tests/support/memory_bin.h"
#include "widgets/boards/board_thumbnails.h"
#include "widgets/boards/whiteboard_layout.h"

namespace varnel {
namespace {

const std::wstring kFolder = L"C:\\wboard";
constexpr Size kSize{60, 40};

struct SetClock : WallClock {
  LocalTime Now() const override { return {2024, 1, 31, 3, 15, 45, second}; }
  int second = 0;
};

std::string Picture(std::uint32_t pixel) {
  return WriteBmp(Image(60, 40, pixel), BmpDepth::k24Bits);
}

class Boards : public ::testing::Test {
 protected:
  // What a run of the program has in memory.
  struct Run {
    explicit Run(Boards& test) : boards(test.disk, test.bin, test.clock, drawn) {
      boards.Adopt(kFolder + L"\\", kSize);
    }
    void Draw() {
      drawn.MouseDown({20, 20}, BoardButton::kLeft);
      drawn.MouseUp();
    }
    std::vector<std::wstring> Titles() const {
      std::vector<std::wstring> titles;
      for (std::size_t i = 0; i < boards.boards().count(); ++i) {
        titles.push_back(boards.boards().Title(i));
      }
      return titles;
    }
    DrawingBoard drawn{Canvas::kWhiteBoard};
    Whiteboard boards;
  };

  std::string File(const std::wstring& title) {
    return disk.Read(kFolder + L"\\" + title + L".bmp", kMostBoardBytes).bytes;
  }
  void Put(const std::wstring& title, std::string bytes) {
    disk.Plant(kFolder + L"\\" + title + L".bmp", std::move(bytes));
  }

  test::MemoryFiles disk{kFolder};
  test::MemoryBin bin{disk};
  SetClock clock;
};

using Titles = std::vector<std::wstring>;

TEST_F(Boards, AreSavedUnderTheTimeAndThenInTheirFile) {
  Run run(*this);
  EXPECT_EQ(run.boards.name(), L"New Board");
  EXPECT_TRUE(run.boards.BoardSave());
  EXPECT_TRUE(run.Titles().empty()) << "nothing was drawn";
  run.Draw();
  EXPECT_TRUE(run.boards.BoardSave());
  const std::wstring name = L"pic_20240131_154500";
  EXPECT_EQ(run.Titles(), Titles{name});
  EXPECT_EQ(run.boards.name(), name);
  EXPECT_EQ(run.boards.current(), 0u);
  const std::string first = File(name);
  EXPECT_EQ(ReadBmp(first), run.drawn.pixels());

  clock.second = 9;
  run.drawn.Clear();
  EXPECT_TRUE(run.boards.BoardNew(kSize));
  EXPECT_EQ(run.Titles(), Titles{name});
  EXPECT_EQ(File(name), Picture(0xFFFFFFFF));
  ASSERT_EQ(VersionsOf(disk, kFolder + L"\\" + name + L".bmp").size(), 1u);
  EXPECT_EQ(run.boards.name(), L"New Board");
  EXPECT_FALSE(run.boards.current());

  // Two within one second: the second takes the first one's place.
  for (int i = 0; i < 2; ++i) {
    run.Draw();
    EXPECT_TRUE(run.boards.BoardNew(kSize));
  }
  EXPECT_EQ(run.boards.boards().count(), 2u);
}

TEST_F(Boards, GoBackToWhatTheyWere) {
  Run run(*this);
  run.Draw();
  run.boards.BoardSave();
  const std::string first = File(run.boards.name());
  run.drawn.Clear();
  run.boards.BoardSave();
  run.Draw();
  const std::vector<DocumentVersion> versions = run.boards.Versions();
  ASSERT_EQ(versions.size(), 1u);
  EXPECT_TRUE(run.boards.Restore(versions[0]));
  EXPECT_EQ(File(run.boards.name()), first);
  EXPECT_EQ(run.drawn.pixels(), ReadBmp(first));
  EXPECT_FALSE(run.drawn.BoardModified());
  EXPECT_EQ(run.boards.Versions().size(), 3u) << "what was unsaved is kept too";
  disk.Plant(versions[0].path, "no picture");
  run.drawn.Clear();
  EXPECT_FALSE(run.boards.Restore(versions[0]));
  EXPECT_FALSE(run.boards.trouble().empty());
  EXPECT_TRUE(run.drawn.BoardModified());
}

TEST_F(Boards, AreSavedBeforeOthersAreShown) {
  Put(L"a", Picture(0xFF102030));
  Put(L"b", Picture(0xFF405060));
  Put(L"torn", Picture(0xFF405060).substr(0, 300));
  Run run(*this);
  ASSERT_TRUE(run.boards.Show(L"a.bmp"));
  run.Draw();
  ASSERT_TRUE(run.boards.Show(L"b.bmp"));
  EXPECT_NE(File(L"a"), Picture(0xFF102030));
  EXPECT_FALSE(run.drawn.CanUndo());
  EXPECT_FALSE(run.boards.Show(L"torn.bmp"));
  EXPECT_EQ(run.boards.name(), L"b");
  EXPECT_EQ(run.boards.trouble(), L"\"torn\" is damaged or no picture");
  // One that cannot be saved stays.
  run.Draw();
  const Image drawn = run.drawn.pixels();
  disk.locked.insert(kFolder + L"\\b.bmp");
  EXPECT_FALSE(run.boards.Show(L"a.bmp"));
  EXPECT_FALSE(run.boards.BoardNew(kSize));
  EXPECT_EQ(run.drawn.pixels(), drawn);
  EXPECT_TRUE(run.drawn.BoardModified());
  EXPECT_FALSE(run.boards.trouble().empty());
}

TEST_F(Boards, GoToTheBinAndLeaveTheOneBefore) {
  for (const wchar_t* title : {L"a", L"b", L"c"}) Put(title, Picture(0xFF102030));
  Run run(*this);
  run.boards.Show(L"b.bmp");
  run.Draw();
  EXPECT_TRUE(run.boards.BoardDelete(kSize));
  EXPECT_EQ(run.boards.name(), L"a");
  EXPECT_NE(bin.content.at(kFolder + L"\\b.bmp"), Picture(0xFF102030)) << "as it was seen";
  EXPECT_TRUE(run.boards.BoardDelete(kSize));
  EXPECT_EQ(run.boards.name(), L"c");
  disk.locked.insert(kFolder + L"\\c.bmp");
  EXPECT_FALSE(run.boards.BoardDelete(kSize));
  EXPECT_EQ(run.Titles(), Titles{L"c"});
  disk.locked.clear();
  EXPECT_TRUE(run.boards.BoardDelete(kSize));
  EXPECT_EQ(run.boards.name(), L"New Board");
  EXPECT_FALSE(run.boards.BoardDelete(kSize));
}

TEST_F(Boards, FollowTheirNamesAndTheirFiles) {
  Put(L"a", Picture(0xFF102030));
  Put(L"b", Picture(0xFF102030));
  Run run(*this);
  run.boards.Show(L"a.bmp");
  EXPECT_EQ(run.boards.Rename(0, L"b", NameClash::kAsk), RenameResult::kClash);
  EXPECT_EQ(run.boards.Rename(0, L"x\\y", NameClash::kAsk), RenameResult::kBadName);
  EXPECT_EQ(run.boards.Rename(0, L"z", NameClash::kAsk), RenameResult::kDone);
  EXPECT_EQ(run.boards.name(), L"z");
  EXPECT_EQ(run.boards.current(), 1u);

  Put(L"z", Picture(0xFF0000FF));
  run.boards.SideBarRefresh(kSize);
  EXPECT_EQ(run.drawn.pixels().At(1, 1), 0xFF0000FF);
  // What others made of a board that is drawn on is not written over.
  run.Draw();
  const Image drawn = run.drawn.pixels();
  Put(L"z", Picture(0xFF00FF00));
  run.boards.SideBarRefresh(kSize);
  EXPECT_EQ(run.drawn.pixels(), drawn);
  EXPECT_TRUE(run.boards.BoardSave());
  EXPECT_EQ(File(L"z"), Picture(0xFF00FF00));
  EXPECT_EQ(ReadBmp(File(L"pic_20240131_154500")), drawn);
  EXPECT_FALSE(run.boards.trouble().empty());
  disk.Remove(kFolder + L"\\pic_20240131_154500.bmp");
  run.boards.SideBarRefresh(kSize);
  EXPECT_EQ(run.boards.name(), L"New Board");
}

TEST_F(Boards, ComeBackWhereTheProgramWasEnded) {
  Put(L"a", Picture(0xFF102030));
  Image drawn;
  {
    Run run(*this);
    run.boards.Show(L"a.bmp");
    run.Draw();
    run.boards.Tend(1000);
    run.Draw();
    run.boards.Tend(3999);
    EXPECT_TRUE(FindDrafts(disk, kFolder).empty());
    run.boards.Tend(4000);
    drawn = run.drawn.pixels();
  }
  Run again(*this);
  EXPECT_EQ(again.boards.name(), L"a");
  EXPECT_EQ(again.drawn.pixels(), drawn);
  EXPECT_TRUE(again.drawn.BoardModified());
  EXPECT_EQ(File(L"a"), Picture(0xFF102030));
  EXPECT_TRUE(again.boards.BoardSave());
  EXPECT_EQ(ReadBmp(File(L"a")), drawn);
  EXPECT_TRUE(FindDrafts(disk, kFolder).empty());

  // A draft of a board that others changed afterwards becomes a board of its own.
  again.drawn.Clear();
  again.boards.KeepDraft(9000);
  Put(L"a", Picture(0xFF00FF00));
  Run last(*this);
  EXPECT_EQ(last.boards.name(), L"New Board");
  EXPECT_EQ(last.boards.boards().count(), 2u);
  EXPECT_EQ(File(L"a"), Picture(0xFF00FF00));
}

TEST(BoardThumbnails, AreMadeOnceAndAgainWhenTheBoardHasChanged) {
  BoardThumbnails pictures;
  EXPECT_EQ(pictures.Find(L"a", {1, 1}), nullptr);
  EXPECT_EQ(pictures.Find(L"b", {1, 1}), nullptr);
  EXPECT_EQ(pictures.Find(L"a", {1, 2}), nullptr);
  const auto wish = pictures.Next();
  ASSERT_TRUE(wish);
  EXPECT_EQ(*wish, (BoardThumbnails::Wish{L"a", {1, 2}}));
  pictures.Put(*wish, Image(3, 2));
  ASSERT_TRUE(pictures.Find(L"a", {1, 2}));
  EXPECT_EQ(pictures.Next()->name, L"b");
  EXPECT_EQ(pictures.Find(L"a", {1, 3})->width(), 3) << "the old one meanwhile";
  EXPECT_EQ(pictures.Next()->name, L"a");

  Image board(400, 300, 0xFFFFFFFF);
  EXPECT_EQ(ThumbnailOf(board, {40, 40}).width(), 40);
  board.Fill({390, 290, 400, 300}, 0xFF000000);
  const Image small = ThumbnailOf(board, {40, 40});
  EXPECT_EQ(small.At(39, 29), 0xFF000000);
  EXPECT_EQ(small.At(1, 1), 0xFFFFFFFF);
  EXPECT_TRUE(ThumbnailOf(Image(), {40, 40}).empty());
}

TEST(WhiteboardLayout, NothingOverlapsAtAnySize) {
  for (const int dpi : {96, 192}) {
    for (int width = 100; width < 1300; width += 43) {
      for (int height = 20; height < 900; height += 61) {
        const WhiteboardLayout layout = LayOutWhiteboard({width, height}, dpi, true);
        std::vector<Rect> boxes(layout.pens.begin(), layout.pens.end());
        boxes.insert(boxes.end(), layout.tools.begin(), layout.tools.end());
        boxes.insert(boxes.end(), {layout.pen_menu, layout.side_list, layout.document});
        test::ExpectApart(boxes, {0, 0, width, height});
        // There is a way to every pen wherever there is a strip.
        const bool strip = !layout.pens[kEraser].empty();
        if (strip) EXPECT_NE(layout.pens[0].empty(), layout.pen_menu.empty());
      }
    }
  }
}

}  // namespace
}  // namespace varnel
