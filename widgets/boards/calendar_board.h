// The months of one folder, one of them on the drawing board: paged, and saved without asking.
// Nothing drawn is lost, and nothing that others made is written over.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/document_file.h"
#include "base/wall_clock.h"
#include "widgets/boards/board_document.h"
#include "widgets/boards/calendar_sheet.h"
#include "widgets/boards/drawing_board.h"
#include "widgets/boards/holidays.h"
#include "widgets/boards/month.h"

namespace varnel {

class CalendarBoard : public BoardDocument {
 public:
  // A month with its ink as it is to be seen in its file.
  using Picture = std::function<Image(Month month, const MonthInk& ink)>;

  // All that is given outlives the board.
  CalendarBoard(FileStore& files, const TimeFormatter& words, DrawingBoard& board, Picture picture);

  // Turns to a folder and shows `month`, on grids that begin with `first_weekday` (0 Sunday to 6
  // Saturday). Unsaved changes that a run of the program left there are shown as unsaved changes,
  // those of other months are saved. What is unsaved in the folder before has to be saved first, or
  // is lost.
  void Adopt(const std::wstring& folder, Month month, int first_weekday);

  Month month() const { return month_; }
  // Of the grid that is shown.
  int first_weekday() const { return shown_weekday_; }
  // As it was asked for; a month whose ink cannot be moved keeps the one it was drawn on.
  int wished_weekday() const { return first_weekday_; }
  std::wstring title() const { return MonthTitle(month_, words_); }
  const Holidays& holidays() const { return holidays_; }

  // In the month's file. What others made of it meanwhile is kept beside it.
  bool Save() override;
  // Saves, then shows another month; false, with all as it was, when it cannot be saved.
  bool Show(Month month);
  // Shows the month's file as it now is, or an empty month where there is none that can be read.
  // What is unsaved is lost.
  void Load();
  // Reads the folder anew: a month without unsaved changes follows its file. True when there is
  // something new to be seen.
  bool Refresh();
  // From the next month on that is shown.
  void SetFirstWeekday(int weekday) { first_weekday_ = weekday; }

  std::vector<DocumentVersion> Versions() const override { return file_->Versions(); }
  bool Restore(const DocumentVersion& version) override;
  void Tend(std::uint64_t now) override;
  void KeepDraft(std::uint64_t now) override;

 private:
  MonthInk InkShown() const { return {board_.pixels(), shown_weekday_}; }
  std::optional<Month> MonthOfPath(const std::wstring& path) const;
  std::wstring PathBeside(const std::wstring& path) const;
  void ShowInk(MonthInk ink);
  void TakeUpDrafts();
  void TakeUpDraft(const FoundDraft& draft, Month month, bool counts);
  FileResult SaveOver(DocumentFile& file, const std::string& bytes);
  // Whether it is a fault, which is then told.
  bool Failed(FileResult result);
  // True when they are others than before.
  bool ReadHolidays();

  FileStore& files_;
  const TimeFormatter& words_;
  DrawingBoard& board_;
  Picture picture_;
  std::wstring folder_;  // ends in "\"
  Month month_;
  int first_weekday_ = 0;  // as the user wants it
  int shown_weekday_ = 0;
  Holidays holidays_;
  FileStamp holiday_stamp_;  // of their file
  std::optional<DocumentFile> file_;
  std::uint64_t noted_changes_ = 0;
};

}  // namespace varnel
