#include "widgets/calculator/calculation_log.h"

#include <algorithm>
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
  file_ = ListLoadFromFile(lines_, files_, path_);
  saved_ = true;
  keys_.resize(lines_.count());
  std::iota(keys_.begin(), keys_.end(), std::size_t{0});
}

bool CalculationLog::Append(std::wstring_view line) {
  const std::size_t key = lines_.count();
  const bool added = std::ranges::find(keys_, key) == keys_.end();
  const std::size_t former_size = lines_.bytes().size();
  if (added) {
    lines_.Add(line);
    keys_.push_back(key);
  }
  const std::string_view record = lines_.bytes().substr(former_size);
  if (file_ != FileState::kSame || !files_.Append(path_, former_size, record)) Save();
  return added;
}

void CalculationLog::DeleteSelected(std::vector<std::size_t> indexes) {
  // From the last on, so that none changes the place of another.
  std::ranges::sort(indexes, std::ranges::greater());
  indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
  for (const std::size_t index : indexes) {
    if (index >= lines_.count()) continue;
    lines_.Remove(index);
    keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(index));
  }
  Save();
}

void CalculationLog::Clear() {
  lines_.Clear();
  keys_.clear();
  Save();
}

void CalculationLog::Save() {
  saved_ = false;
  if (file_ == FileState::kMore && !MoveFileAside()) return;
  saved_ = ListSaveToFile(lines_, files_, path_);
  file_ = saved_ ? FileState::kSame : FileState::kWhole;
}

bool CalculationLog::MoveFileAside() {
  if (!files_.FileExists(path_)) return true;
  for (int i = 1; i <= kMostOldFiles; ++i) {
    const std::wstring old_path = path_ + L".old" + (i == 1 ? L"" : NumberText(i));
    if (!files_.FileExists(old_path)) return files_.Rename(path_, old_path);
  }
  return false;
}

}  // namespace varnel
