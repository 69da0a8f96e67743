#include "widgets/boards/drawing_board.h"

#include <gtest/gtest.h>

#include "base/resample.h"

namespace varnel {
namespace {

constexpr std::uint32_t kWhitePixel = 0xFFFFFFFF;
constexpr Rect kView{0, 0, 100, 80};

FloatSource Block(int side, std::uint32_t pixel) {
  return [=](double scale) {
    const int scaled = static_cast<int>(side * scale + 0.5);
    return Image(scaled, scaled, pixel);
  };
}

class Board : public ::testing::Test {
 protected:
  Board() { board.Load(Image(100, 80, kWhitePixel)); }

  std::uint32_t Pixel(int x, int y) const { return board.pixels().At(x, y); }
  int Inked() const {
    return static_cast<int>(std::ranges::count_if(
        board.pixels().All(), [](std::uint32_t pixel) { return pixel != kWhitePixel; }));
  }
  void Stroke(Point from, Point to, BoardButton button = BoardButton::kLeft) {
    board.MouseDown(from, button);
    board.MouseMove(to);
    board.MouseUp();
  }

  DrawingBoard board{Canvas::kWhiteBoard};
};

TEST_F(Board, DrawsWithEitherButtonAndErases) {
  EXPECT_EQ(board.BoardMode(), L"DRAW");
  board.SetPen(1);
  EXPECT_EQ(board.PenColorName(), L"RED");
  board.MouseDown({20, 20}, BoardButton::kRight);
  EXPECT_TRUE(board.MouseIsDown());
  EXPECT_EQ(Inked(), 9) << "a click leaves a dot";
  EXPECT_EQ(Pixel(20, 20), 0xFFFF0000);
  const Rect changed = board.MouseMove({60, 20});
  EXPECT_TRUE(changed.Contains({40, 20}));
  EXPECT_EQ(Pixel(40, 20), 0xFFFF0000);
  board.MouseUp();
  EXPECT_TRUE(board.BoardModified());
  board.MouseMove({60, 70});
  EXPECT_EQ(Pixel(60, 50), kWhitePixel) << "no button is held";

  board.SetPen(9);
  EXPECT_EQ(board.PenColorIndex(), 9);
  EXPECT_EQ(board.PenColorName(), L"ERASE");
  board.SetPenWidth(20);
  Stroke({20, 20}, {60, 20});
  EXPECT_EQ(Inked(), 0);
  board.Undo();
  EXPECT_EQ(Pixel(40, 20), 0xFFFF0000);
  board.Undo();
  EXPECT_EQ(Inked(), 0);
  EXPECT_FALSE(board.CanUndo());
  board.Redo();
  EXPECT_EQ(Pixel(40, 20), 0xFFFF0000);
}

TEST_F(Board, FloatsWhatIsInsertedUntilItIsMerged) {
  struct Case {
    FloatKind kind;
    const wchar_t* mode;
    BoardButton button;
    bool merges;
  };
  for (const Case& each : {Case{FloatKind::kText, L"TEXT", BoardButton::kLeft, true},
                           Case{FloatKind::kText, L"TEXT", BoardButton::kRight, false},
                           Case{FloatKind::kPicture, L"PICTURE", BoardButton::kRight, true},
                           Case{FloatKind::kIcon, L"ICON", BoardButton::kLeft, true}}) {
    board.Load(Image(100, 80, kWhitePixel));
    ASSERT_TRUE(board.BoardInsertObject(each.kind, Block(10, 0xFF00FF00), kView));
    EXPECT_EQ(board.BoardMode(), each.mode);
    EXPECT_EQ(board.FloatBox(), (Rect{45, 35, 55, 45})) << "in the middle";
    EXPECT_EQ(board.MouseMove({25, 25}), (Rect{20, 20, 55, 45}));
    EXPECT_FALSE(board.BoardModified());
    board.MouseDown({25, 25}, each.button);
    board.MouseMove({70, 70});
    board.MouseUp();
    EXPECT_EQ(board.floating(), !each.merges);
    EXPECT_EQ(board.BoardModified(), each.merges);
    // The press that merges draws no line, even while the button is held.
    EXPECT_EQ(Inked(), each.merges ? 100 : 0);
    if (each.merges) EXPECT_EQ(Pixel(20, 20), 0xFF00FF00);
  }
}

TEST_F(Board, MovesAndScalesWhatFloatsByKeys) {
  ASSERT_TRUE(board.BoardInsertObject(FloatKind::kPicture, Block(10, 0xFF0000FF), kView));
  board.MouseMove({25, 25});
  board.MoveFloat(-10, 1);
  EXPECT_EQ(board.FloatBox(), (Rect{10, 21, 20, 31}));
  board.MouseMove({26, 25});
  EXPECT_EQ(board.FloatBox(), (Rect{11, 21, 21, 31})) << "held where it is now";
  for (int i = 0; i < 100; ++i) board.ScaleFloat(1);
  EXPECT_GT(board.FloatBox().width(), 90);
  EXPECT_LE(board.FloatBox().width(), 100);
  for (int i = 0; i < 200; ++i) board.ScaleFloat(-1);
  EXPECT_EQ(board.FloatBox().width(), 1);
  EXPECT_FALSE(board.MergeFloat().empty());
  EXPECT_EQ(Inked(), 1);

  ASSERT_TRUE(board.BoardInsertObject(FloatKind::kIcon, Block(10, 0xFF0000FF), kView));
  EXPECT_FALSE(board.SetPen(2).empty()) << "a pen drops it";
  EXPECT_EQ(board.BoardMode(), L"DRAW");
  EXPECT_FALSE(board.BoardInsertObject(FloatKind::kPicture, Block(0, 0), kView));
  EXPECT_EQ(board.BoardMode(), L"DRAW");
}

TEST_F(Board, KeepsAllPixelsAndForgetsWhatWasBefore) {
  Stroke({95, 75}, {95, 78});
  board.Fit({50, 200});
  EXPECT_EQ(board.size(), (Size{100, 200}));
  board.Fit({50, 60});
  EXPECT_EQ(board.size(), (Size{100, 80})) << "what was only seen is not kept";
  EXPECT_EQ(board.Picture().height(), 80);
  EXPECT_EQ(Pixel(95, 76), 0xFF000000);
  board.Clear();
  EXPECT_EQ(Inked(), 0);
  board.Undo();
  EXPECT_EQ(Pixel(95, 76), 0xFF000000);
  board.Load(Image(10, 10, kWhitePixel));
  EXPECT_FALSE(board.BoardModified() || board.CanUndo() || board.drawing());

  board.LoadEmpty({300, 200});
  board.Fit({20, 20});
  EXPECT_EQ(board.size(), (Size{20, 20}));
  board.Fit({300, 200});
  Stroke({150, 50}, {150, 60});
  board.Clear();
  board.Fit({20, 20});
  EXPECT_EQ(board.size(), (Size{153, 63})) << "what was drawn there may come back";
}

TEST(ScaledBoard, DrawsAndMergesWhereItIsShown) {
  // Twice as large on the sheet as on the screen, beginning farther to the right.
  DrawingBoard board(Canvas::kClearSheet);
  board.Load(Image(200, 200));
  board.ShowBy(AxisMap({{0, 0}, {10, 40}, {90, 200}}), AxisMap({{0, 0}, {100, 200}}));
  board.SetPenWidth(6);
  const Rect changed = board.MouseDown({50, 50}, BoardButton::kLeft);
  board.MouseUp();
  EXPECT_EQ(board.pixels().At(121, 101), 0xFF000000);
  EXPECT_EQ(board.pixels().At(121, 101 + 7), 0u);
  EXPECT_TRUE(changed.Contains({50, 50}) && changed.width() < 20);
  board.SetPen(kEraser);
  board.MouseDown({50, 50}, BoardButton::kLeft);
  board.MouseUp();
  EXPECT_LT(board.pixels().At(121, 101) >> 24, 3u) << "the eraser takes ink away";
  ASSERT_TRUE(board.BoardInsertObject(FloatKind::kIcon, Block(10, 0xFF00FF00), {0, 0, 60, 60}));
  board.MouseMove({50, 20});
  board.MergeFloat();
  EXPECT_EQ(board.pixels().At(121, 41), 0xFF00FF00);
  EXPECT_EQ(board.pixels().At(121, 55), 0u);
  EXPECT_EQ(board.pixels().At(105, 41), 0u);
}

}  // namespace
}  // namespace varnel
