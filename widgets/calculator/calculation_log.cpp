#include "widgets/calculator/calculation_log.h"

#include <algorithm>
#include <map>
#include <numeric>

#include "base/number_format.h"
#include "base/number_text.h"

namespace varnel {
namespace {

constexpr std::wstring_view kBeforeResult = L" = ";
constexpr int kMostOldFiles = 99;

}  // namespace

std::wstring CalculationLine(double first, wchar_t sign, double second, std::wstring_view result) {
  std::wstring line = GeneralNumber(first) + L' ' + sign + L' ' + GeneralNumber(second);
  line += kBeforeResult;
  line += result;
  return line;
}

std::optional<std::wstring> RecalledText(std::wstring_view line) {
  const std::size_t found = line.find(kBeforeResult);
  if (found == std::wstring_view::npos) return std::nullopt;
  return std::wstring(line.substr(found + kBeforeResult.size()));
}

void CalculationLog::Load() {
  lines_.Clear();
  removed_.Clear();
  unsaved_ = 0;
  rescued_.clear();
  known_ = changed_ = false;
  trouble_ = FileResult::kDone;
  TakeFile();
  TakeRescuedLines();
  NumberKeys();
  if (changed_) Save();
}

bool CalculationLog::Append(std::wstring_view line) {
  const std::size_t key = lines_.count();
  const bool added = std::ranges::find(keys_, key) == keys_.end();
  if (added) {
    lines_.Add(line);
    keys_.push_back(key);
    ++unsaved_;
  }
  changed_ = true;
  Save();
  return added;
}

void CalculationLog::DeleteSelected(std::vector<std::size_t> indexes) {
  // From the last on, so that none changes the place of another.
  std::ranges::sort(indexes, std::ranges::greater());
  indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
  for (const std::size_t index : indexes) {
    if (index < lines_.count()) RemoveLine(index);
  }
  changed_ = true;
  Save();
}

void CalculationLog::RemoveLine(std::size_t index) {
  if (index < FirstUnsaved()) {
    removed_.AddRecord(lines_.Record(index));
  } else {
    --unsaved_;
  }
  lines_.Remove(index);
  keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(index));
}

void CalculationLog::Clear() {
  for (std::size_t i = 0; i < FirstUnsaved(); ++i) removed_.AddRecord(lines_.Record(i));
  lines_.Clear();
  keys_.clear();
  unsaved_ = 0;
  changed_ = true;
  Save();
}

void CalculationLog::Retry() {
  if (!saved()) Save();
}

void CalculationLog::NumberKeys() {
  keys_.resize(lines_.count());
  std::iota(keys_.begin(), keys_.end(), std::size_t{0});
}

// Reads the file and makes the changes that it lacks to its lines. False when it cannot be read.
bool CalculationLog::TakeFile() {
  RecordList theirs;
  const ListRead read = ListLoadFromFile(theirs, files_, path_);
  trouble_ = read.result;
  if (read.result != FileResult::kDone) return false;
  known_ = true;
  state_ = read.state;
  stamp_ = read.stamp;
  // Deleted or emptied by others, or by an accident; the lines live on here.
  if (stamp_.size == 0 && FirstUnsaved() > 0) {
    state_ = FileState::kWhole;
    return true;
  }
  std::map<std::string_view, std::size_t> to_remove;
  for (std::size_t i = 0; i < removed_.count(); ++i) ++to_remove[removed_.Record(i)];
  RecordList merged;
  for (std::size_t i = 0; i < theirs.count(); ++i) {
    const auto found = to_remove.find(theirs.Record(i));
    if (found == to_remove.end() || found->second == 0) {
      merged.AddRecord(theirs.Record(i));
    } else {
      --found->second;
    }
  }
  for (std::size_t i = FirstUnsaved(); i < lines_.count(); ++i) merged.AddRecord(lines_.Record(i));
  lines_ = std::move(merged);
  NumberKeys();
  return true;
}

void CalculationLog::TakeRescuedLines() {
  RecordList rescued;
  ListLoadFromFile(rescued, files_, unsaved_path_);
  for (std::size_t i = 0; i < rescued.count(); ++i) lines_.AddRecord(rescued.Record(i));
  rescued_ = rescued.bytes();
  unsaved_ = rescued.count();
  changed_ = unsaved_ > 0;
}

void CalculationLog::Save() {
  // Others may change the file again each time it was read.
  constexpr int kMostTries = 3;
  for (int i = 0; i < kMostTries; ++i) {
    if (!known_ && !TakeFile()) break;
    if (!changed_) return;
    const FileWritten written = Write();
    trouble_ = written.result;
    if (written) {
      state_ = FileState::kSame;
      stamp_ = written.stamp;
      changed_ = false;
      unsaved_ = 0;
      removed_.Clear();
      break;
    }
    if (trouble_ != FileResult::kChanged && trouble_ != FileResult::kMissing) break;
    known_ = false;
  }
  KeepUnsavedLines();
}

FileWritten CalculationLog::Write() {
  if (state_ == FileState::kSame && removed_.count() == 0) {
    return files_.Append(path_, stamp_, lines_.BytesFrom(FirstUnsaved()));
  }
  if (state_ == FileState::kMore) {
    const FileResult result = MoveFileAside();
    if (result != FileResult::kDone) return {result, {}};
    state_ = FileState::kWhole;
    stamp_ = kNoFile;
  }
  return ListSaveToFile(lines_, files_, path_, stamp_);
}

FileResult CalculationLog::MoveFileAside() {
  if (!files_.FileExists(path_)) return FileResult::kDone;
  for (int i = 1; i <= kMostOldFiles; ++i) {
    const std::wstring old_path = path_ + L".old" + (i == 1 ? L"" : NumberText(i));
    if (!files_.FileExists(old_path)) return files_.Rename(path_, old_path);
  }
  return FileResult::kExists;
}

// Brings the second file up to date: the lines that the log's file lacks, or no file.
void CalculationLog::KeepUnsavedLines() {
  const std::string_view unsaved = lines_.BytesFrom(FirstUnsaved());
  if (unsaved == rescued_) return;
  const FileResult result = unsaved.empty() ? files_.Remove(unsaved_path_)
                                            : files_.Replace(unsaved_path_, unsaved).result;
  if (result == FileResult::kDone) rescued_ = unsaved;
}

}  // namespace varnel
