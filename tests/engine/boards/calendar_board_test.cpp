// The months of a folder: paged, saved, found again, followed.
#include <gtest/gtest.h>

#include <random>

#include "base/bmp.h"
#include "base/ink_block.h"
#include "tests/support/memory_files.h"
#include "widgets/boards/calendar_board.h"
#include "widgets/boards/calendar_layout.h"

namespace varnel {
namespace {

class Names : public TimeFormatter {
 public:
  std::wstring Format(const LocalTime& time, std::wstring_view) const override {
    return french ? L"mois" : std::wstring(EnglishMonthName(time.month));
  }
  bool french = false;
};

constexpr int kMonday = 1, kSunday = 0;
const std::wstring kFolder = L"C:\\calendar";

std::wstring PathOf(const std::wstring& title) {
  return kFolder + L"\\pic_" + title + L".bmp";
}

// A calendar on the folder as a run of the program has it.
struct Calendar {
  explicit Calendar(test::MemoryFiles& files, Month month = {2024, 1}, int weekday = kMonday)
      : calendar(files, names, board,
                 [](Month, const MonthInk&) { return Image(30, 20, 0xFF336699); }) {
    calendar.Adopt(kFolder, month, weekday);
  }
  // A dot in the middle of a cell; returns its place on the sheet.
  Point Draw(int cell) {
    const Rect box = SheetCell(cell % kWeekDays, cell / kWeekDays);
    const Point at{(box.left + box.right) / 2, (box.top + box.bottom) / 2};
    board.MouseDown(at, BoardButton::kLeft);
    board.MouseUp();
    return at;
  }
  bool HasInk(Point at) const { return board.pixels().At(at.x, at.y) != 0; }

  Names names;
  DrawingBoard board{Canvas::kClearSheet};
  CalendarBoard calendar;
};

class CalendarMonths : public ::testing::Test {
 protected:
  test::MemoryFiles files_{kFolder};
};

TEST_F(CalendarMonths, ArePagedAwayAndBackOverNewYear) {
  Calendar run(files_, {2024, 12});
  const Point dot = run.Draw(10);
  EXPECT_TRUE(run.calendar.Show({2025, 1}));
  EXPECT_EQ(run.calendar.title(), L"January 2025");
  EXPECT_FALSE(run.HasInk(dot));
  EXPECT_FALSE(run.board.CanUndo());
  ASSERT_TRUE(files_.FileExists(PathOf(L"December 2024")));
  EXPECT_EQ(ReadBmp(files_.files[PathOf(L"December 2024")])->At(3, 3), 0xFF336699);
  EXPECT_TRUE(run.calendar.Show({2024, 12}));
  EXPECT_TRUE(run.HasInk(dot));
  EXPECT_FALSE(run.board.BoardModified());
  // What was not drawn on has no file.
  EXPECT_FALSE(files_.FileExists(PathOf(L"January 2025")));
}

TEST_F(CalendarMonths, AClearedMonthIsEmptyAndAPlainPictureIsShown) {
  Calendar run(files_);
  const Point dot = run.Draw(3);
  run.calendar.Save();
  run.board.Clear();
  run.calendar.Show({2024, 2});
  run.calendar.Show({2024, 1});
  EXPECT_FALSE(run.HasInk(dot));
  files_.files[PathOf(L"March 2024")] = WriteBmp(Image(400, 300, 0xFF00FF00), BmpDepth::k24Bits);
  run.calendar.Show({2024, 3});
  EXPECT_EQ(run.board.pixels().At(dot.x, dot.y), 0xFF00FF00);
  files_.files[PathOf(L"April 2024")] = "no picture";
  run.calendar.Show({2024, 4});
  EXPECT_EQ(run.board.pixels(), Image(kSheetSize.width, kSheetSize.height));
  EXPECT_TRUE(run.calendar.trouble().empty());
  run.Draw(3);
  EXPECT_TRUE(run.calendar.Save());
  EXPECT_EQ(files_.files[PathOf(L"April 2024_2")], "no picture");
}

TEST_F(CalendarMonths, GoBackToWhatTheyWere) {
  Calendar run(files_);
  const Point first = run.Draw(3);
  run.calendar.Save();
  const Point second = run.Draw(4);
  run.calendar.Save();
  const Point unsaved = run.Draw(5);
  const std::vector<DocumentVersion> versions = run.calendar.Versions();
  ASSERT_EQ(versions.size(), 1u);
  EXPECT_TRUE(run.calendar.Restore(versions[0]));
  EXPECT_TRUE(run.HasInk(first) && !run.HasInk(second) && !run.HasInk(unsaved));
  EXPECT_FALSE(run.board.BoardModified());
  ASSERT_EQ(run.calendar.Versions().size(), 3u);
  EXPECT_TRUE(run.calendar.Restore(run.calendar.Versions()[0]));
  EXPECT_TRUE(run.HasInk(second) && run.HasInk(unsaved));
  files_.files[versions[0].path] = "no picture";
  EXPECT_FALSE(run.calendar.Restore(versions[0]));
  EXPECT_TRUE(run.HasInk(second));
}

TEST_F(CalendarMonths, AMonthInAnotherLanguageIsFoundUnderItsEnglishName) {
  const Point dot = [&] {
    Calendar run(files_);
    const Point at = run.Draw(5);
    run.calendar.Save();
    return at;
  }();
  Calendar run(files_, {2024, 2});
  run.names.french = true;
  run.calendar.Show({2024, 1});
  EXPECT_TRUE(run.HasInk(dot));
  run.Draw(6);
  EXPECT_TRUE(run.calendar.Save());
  EXPECT_FALSE(files_.FileExists(PathOf(L"mois 2024")));
}

TEST_F(CalendarMonths, FollowTheirFilesButNeverLoseWhatIsUnsaved) {
  std::string other;
  Point theirs;
  {
    test::MemoryFiles elsewhere(kFolder);
    Calendar run(elsewhere);
    theirs = run.Draw(20);
    run.calendar.Save();
    other = elsewhere.files[PathOf(L"January 2024")];
  }
  Calendar run(files_);
  files_.files[PathOf(L"January 2024")] = other;
  run.calendar.Refresh();
  EXPECT_TRUE(run.HasInk(theirs));
  files_.Remove(PathOf(L"January 2024"));
  run.calendar.Refresh();
  EXPECT_FALSE(run.HasInk(theirs));

  const Point ours = run.Draw(8);
  files_.files[PathOf(L"January 2024")] = other;
  run.calendar.Refresh();
  EXPECT_TRUE(run.HasInk(ours));
  EXPECT_TRUE(run.calendar.Save());
  EXPECT_NE(run.calendar.trouble().find(L"pic_January 2024_2"), std::wstring::npos);
  EXPECT_EQ(files_.files[PathOf(L"January 2024_2")], other);
  run.calendar.Load();
  EXPECT_TRUE(run.HasInk(ours));
}

TEST_F(CalendarMonths, StayWhereTheyCannotBeSaved) {
  Calendar run(files_);
  const Point dot = run.Draw(8);
  files_.fail_writes = true;
  EXPECT_FALSE(run.calendar.Show({2024, 2}));
  EXPECT_EQ(run.calendar.month(), (Month{2024, 1}));
  EXPECT_TRUE(run.HasInk(dot));
  EXPECT_TRUE(run.calendar.trouble().starts_with(L"\"pic_January 2024\" "));
  files_.fail_writes = false;
  EXPECT_TRUE(run.calendar.Show({2024, 2}));
}

TEST_F(CalendarMonths, UnsavedChangesComeBackAfterAKill) {
  Point january, february;
  {
    Calendar run(files_, {2024, 2});
    february = run.Draw(9);
    run.calendar.Tend(1000);
    run.Draw(9);
    run.calendar.Tend(3999);
    EXPECT_TRUE(FindDrafts(files_, kFolder).empty());
    run.calendar.Tend(4000);
  }
  {
    Calendar run(files_, {2024, 1});
    EXPECT_TRUE(files_.FileExists(PathOf(L"February 2024")));
    january = run.Draw(30);
    run.calendar.Tend(1000);
    run.calendar.Tend(4000);
  }
  Calendar run(files_, {2024, 1});
  EXPECT_TRUE(run.board.BoardModified());
  EXPECT_TRUE(run.HasInk(january));
  EXPECT_FALSE(files_.FileExists(PathOf(L"January 2024")));
  EXPECT_TRUE(run.calendar.Show({2024, 2}));
  EXPECT_TRUE(run.HasInk(february));
  EXPECT_TRUE(files_.FileExists(PathOf(L"January 2024")));
  EXPECT_TRUE(FindDrafts(files_, kFolder).empty());
}

TEST_F(CalendarMonths, HolidaysComeFromTheFolder) {
  files_.files[kFolder + L"\\holidays.txt"] = "01-01 New Year\n";
  Calendar run(files_);
  EXPECT_EQ(run.calendar.holidays().NameOf({2024, 1, 1}), L"New Year");
  files_.files[kFolder + L"\\holidays.txt"] = "01-06 The Epiphany\n";
  run.calendar.Refresh();
  EXPECT_EQ(run.calendar.holidays().NameOf({2024, 1, 6}), L"The Epiphany");
}

// Every day keeps its ink when the week begins with another day, or the grid stays as it was.
TEST(CalendarInk, GoesWithItsDayToAnotherFirstWeekday) {
  std::mt19937 random(7);
  const auto number = [&](int low, int high) {
    return std::uniform_int_distribution(low, high)(random);
  };
  int kept_as_it_was = 0;
  for (int round = 0; round < 30; ++round) {
    const Month month{number(1990, 2040), number(1, 12)};
    const int from = number(0, 6), to = number(0, 6);
    const auto former = GridOf(month, from);
    MonthInk ink = NoInk(from);
    // Days at the ends of the grid are those that may drop out.
    const auto cell = static_cast<std::size_t>(round % 2 ? number(0, 6) : number(28, 41));
    const Rect box = SheetCell(static_cast<int>(cell) % kWeekDays, static_cast<int>(cell) / 7);
    ink.sheet.Set(box.left + 5, box.bottom - 1, 0xFF0000FF);
    const auto read = MonthInkIn(MonthDraftBytes(ink), month, to);
    ASSERT_TRUE(read);
    const auto now = GridOf(month, read->first_weekday);
    if (read->first_weekday != to) {
      ++kept_as_it_was;
      EXPECT_EQ(std::ranges::count(GridOf(month, to), former[cell]), 0);
    }
    for (std::size_t i = 0; i < now.size(); ++i) {
      const Rect place = SheetCell(static_cast<int>(i) % kWeekDays, static_cast<int>(i) / 7);
      EXPECT_EQ(read->sheet.At(place.left + 5, place.bottom - 1) != 0, now[i] == former[cell]);
    }
  }
  EXPECT_GT(kept_as_it_was, 0);
  MonthInk named = NoInk(kSunday);
  named.sheet.Set(SheetCell(2, 0).left, 3, 0xFFFF0000);  // on the name of Tuesday
  const auto moved = Rearranged(named, {2024, 5}, kMonday);
  ASSERT_TRUE(moved);
  EXPECT_EQ(moved->sheet.At(SheetCell(1, 0).left, 3), 0xFFFF0000);
}

}  // namespace
}  // namespace varnel
