#include "widgets/boards/calendar_board.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "base/path.h"
#include "base/text.h"
#include "widgets/boards/board_names.h"

namespace varnel {
namespace {

constexpr std::wstring_view kMonthStart = L"pic_";
constexpr std::size_t kYearDigits = 4;

std::wstring TitleOf(const std::wstring& path) {
  const std::wstring name = path.substr(path.rfind(L'\\') + 1);
  return name.substr(0, name.rfind(L'.'));
}

}  // namespace

CalendarBoard::CalendarBoard(FileStore& files, const TimeFormatter& words, DrawingBoard& board,
                             Picture picture)
    : files_(files), words_(words), board_(board), picture_(std::move(picture)), file_(files) {}

void CalendarBoard::Adopt(const std::wstring& folder, Month month, int first_weekday) {
  trouble_.clear();
  file_->Close();
  folder_ = AddTrailingSeparator(folder);
  month_ = month;
  first_weekday_ = first_weekday;
  holidays_ = Holidays();
  holiday_stamp_ = kNoFile;
  ReadHolidays();
  TakeUpDrafts();
}

// --- what a run of the program left

// A month's file may be named in the user's language or in English.
std::optional<Month> CalendarBoard::MonthOfPath(const std::wstring& path) const {
  const std::wstring title = TitleOf(path);
  if (!title.starts_with(kMonthStart) || title.size() < kMonthStart.size() + kYearDigits) {
    return std::nullopt;
  }
  Month month;
  month.year = 0;
  for (const wchar_t digit : title.substr(title.size() - kYearDigits)) {
    if (digit < L'0' || digit > L'9') return std::nullopt;
    month.year = month.year * 10 + (digit - L'0');
  }
  if (month.year < kFirstMonth.year) return std::nullopt;
  const std::wstring rest = title.substr(kMonthStart.size());
  for (month.month = 1; month.month <= 12; ++month.month) {
    if (EqualsIgnoreCase(rest, MonthTitle(month, words_)) ||
        EqualsIgnoreCase(rest, EnglishMonthTitle(month))) {
      return month;
    }
  }
  return std::nullopt;
}

// The newest changes of a month count, where its file is not newer still. What else was left
// becomes pictures beside it, so that nothing waits unseen.
void CalendarBoard::TakeUpDrafts() {
  std::vector<Month> taken;
  const FoundDraft* to_show = nullptr;
  const std::vector<FoundDraft> drafts = FindDrafts(files_, folder_);
  for (const FoundDraft& draft : drafts) {
    const auto month = MonthOfPath(draft.document_path);
    if (!month) continue;
    const bool counts = !draft.older && std::ranges::find(taken, *month) == taken.end();
    if (counts) taken.push_back(*month);
    if (counts && *month == month_) {
      to_show = &draft;
    } else {
      TakeUpDraft(draft, *month, counts);
    }
  }
  Load();
  if (!to_show) return;
  DocumentFile found(files_);
  const FileRead read = found.OpenDraft(*to_show, kMostMonthBytes);
  auto ink = read ? MonthInkIn(read.bytes, month_, first_weekday_) : std::nullopt;
  if (!ink) return;
  file_.emplace(std::move(found));
  ShowInk(std::move(*ink));
  board_.MarkModified();
}

void CalendarBoard::TakeUpDraft(const FoundDraft& draft, Month month, bool counts) {
  DocumentFile found(files_);
  const FileRead read = found.OpenDraft(draft, kMostMonthBytes);
  const auto ink = read ? MonthInkIn(read.bytes, month, first_weekday_) : std::nullopt;
  if (!ink) return;
  const std::string bytes = MonthFileBytes(picture_(month, *ink), *ink);
  if (counts) {
    found.Save(bytes);
  } else {
    found.SaveAs(PathBeside(draft.document_path), bytes);
  }
}

// --- the month that is shown

void CalendarBoard::ShowInk(MonthInk ink) {
  shown_weekday_ = ink.first_weekday;
  board_.Load(std::move(ink.sheet));
  noted_changes_ = board_.changes();
}

void CalendarBoard::Load() {
  const std::wstring path = MonthFile(files_, folder_, month_, words_);
  DocumentFile next(files_);
  const FileRead read = next.Open(path, kMostMonthBytes);
  auto ink = read ? MonthInkIn(read.bytes, month_, first_weekday_) : std::nullopt;
  // A file that cannot be read is not this month's; what is drawn does not take its place.
  if (!ink) next.StartNew(path);
  file_->Close();
  file_.emplace(std::move(next));
  ShowInk(ink ? std::move(*ink) : NoInk(first_weekday_));
}

bool CalendarBoard::Show(Month month) {
  if (!Save()) return false;
  month_ = month;
  Load();
  return true;
}

bool CalendarBoard::Refresh() {
  const bool new_holidays = ReadHolidays();
  if (board_.BoardModified() || board_.floating() || board_.drawing()) return new_holidays;
  const bool renamed = MonthFile(files_, folder_, month_, words_) != file_->path();
  const FileResult now = file_->Check();
  if (!renamed && now != FileResult::kChanged &&
      (now != FileResult::kMissing || !file_->has_file())) {
    return new_holidays;
  }
  Load();
  return true;
}

bool CalendarBoard::ReadHolidays() {
  const std::wstring path = folder_ + std::wstring(kHolidayFile);
  const FileStamp stamp = files_.Stamp(path);
  if (std::exchange(holiday_stamp_, stamp) == stamp) return false;
  const FileRead read = files_.Read(path, kMostHolidayBytes);
  holidays_ = read ? Holidays(read.bytes) : Holidays();
  // One that is locked for now is read the next time.
  if (read.result == FileResult::kLocked) holiday_stamp_ = kNoFile;
  return true;
}

// --- saving

std::wstring CalendarBoard::PathBeside(const std::wstring& path) const {
  std::wstring beside;
  for (int i = 2; beside.empty() || files_.FileExists(beside); ++i) {
    beside = folder_ + TitleOf(path) + L"_" + NumberText(i) + std::wstring(kBoardEnding);
  }
  return beside;
}

FileResult CalendarBoard::SaveOver(DocumentFile& file, const std::string& bytes) {
  const std::wstring beside = PathBeside(file.path());
  if (const FileResult kept = files_.Keep(file.path(), beside); kept != FileResult::kDone) {
    return kept;
  }
  const FileResult result = file.Save(bytes, OthersChanges::kReplace);
  if (result == FileResult::kDone) {
    trouble_ = L"Others changed this month; what they made of it is \"" + TitleOf(beside) + L"\"";
  } else {
    files_.Remove(beside, Removal::kForced);
  }
  return result;
}

bool CalendarBoard::Failed(FileResult result) {
  if (result == FileResult::kDone) return false;
  trouble_ = L"\"" + TitleOf(file_->path()) + L"\" " + std::wstring(FileTrouble(result));
  return true;
}

bool CalendarBoard::Save() {
  trouble_.clear();
  if (!board_.BoardModified()) return true;
  const MonthInk ink = InkShown();
  const std::string bytes = MonthFileBytes(picture_(month_, ink), ink);
  FileResult result = file_->Save(bytes);
  if (result == FileResult::kNoFolder && files_.CreateFolder(folder_)) {
    result = file_->Save(bytes);
  }
  if (result == FileResult::kChanged) result = SaveOver(*file_, bytes);
  if (Failed(result)) return false;
  board_.MarkSaved();
  return true;
}

bool CalendarBoard::Restore(const DocumentVersion& version) {
  // Read before anything is saved: saving may be what drops the oldest version.
  const FileRead read = files_.Read(version.path, kMostMonthBytes);
  auto ink = read ? MonthInkIn(read.bytes, month_, first_weekday_) : std::nullopt;
  if (!ink) {
    trouble_ = kVersionDamaged;
    return false;
  }
  if (!Save()) return false;
  if (Failed(file_->Save(read.bytes, OthersChanges::kReplace))) return false;
  ShowInk(std::move(*ink));
  trouble_ = kRestored;
  return true;
}

void CalendarBoard::Tend(std::uint64_t now) {
  const bool changed = std::exchange(noted_changes_, board_.changes()) != board_.changes();
  // Counted from the first of the changes, however long the hand goes on.
  if (changed && !file_->DraftDue()) file_->NoteChange(now);
  if (const auto due = file_->DraftDue(); due && now >= *due) KeepDraft(now);
}

void CalendarBoard::KeepDraft(std::uint64_t now) {
  if (!board_.BoardModified()) return;
  Failed(file_->KeepDraft(MonthDraftBytes(InkShown()), now));
}

}  // namespace varnel
