#include "widgets/calculator/record_list.h"

#include <algorithm>

#include "base/text.h"

namespace varnel {
namespace {

constexpr std::size_t kLargestFile = 64 << 20;
constexpr std::size_t kLongestRecord = 1000;
constexpr std::size_t kMostRecords = 5'000'000;
constexpr std::string_view kRecordEnd = "\"\r\n";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool IsLineEnd(char byte) {
  return byte == '\r' || byte == '\n';
}

bool IsJunk(char byte) {
  return static_cast<unsigned char>(byte) < 0x20 && byte != '\t';
}

}  // namespace

// Where the record behind the one at `index` begins.
std::size_t RecordList::End(std::size_t index) const {
  return index + 1 < count() ? starts_[index + 1] : bytes_.size();
}

std::string_view RecordList::Record(std::size_t index) const {
  const std::size_t start = starts_[index] + 1;
  return bytes().substr(start, End(index) - kRecordEnd.size() - start);
}

std::wstring RecordList::Text(std::size_t index) const {
  return WideFromUtf8(Record(index));
}

std::string_view RecordList::BytesFrom(std::size_t index) const {
  return index < count() ? bytes().substr(starts_[index]) : std::string_view();
}

void RecordList::Add(std::wstring_view text) {
  AddRecord(Utf8FromWide(text));
}

void RecordList::Remove(std::size_t index) {
  const std::size_t length = End(index) - starts_[index];
  bytes_.erase(starts_[index], length);
  starts_.erase(starts_.begin() + static_cast<std::ptrdiff_t>(index));
  for (std::size_t i = index; i < count(); ++i) starts_[i] -= length;
}

void RecordList::Clear() {
  bytes_.clear();
  starts_.clear();
}

void RecordList::AddRecord(std::string_view text) {
  starts_.push_back(bytes_.size());
  bytes_.push_back('"');
  bytes_ += text;
  bytes_ += kRecordEnd;
}

// Appends the record of a line of the file; false when the line has to be left out.
bool RecordList::TakeLine(std::string_view line) {
  if (line.starts_with('"')) line.remove_prefix(1);
  if (line.ends_with('"')) line.remove_suffix(1);
  if (line.empty()) return true;
  if (line.size() > kLongestRecord || count() >= kMostRecords) return false;
  if (std::ranges::any_of(line, IsJunk)) return false;
  AddRecord(line);
  return true;
}

bool RecordList::Parse(std::string_view file) {
  Clear();
  if (file.starts_with(kByteOrderMark)) file.remove_prefix(kByteOrderMark.size());
  bool whole = true;
  while (!file.empty()) {
    const auto end = std::ranges::find_if(file, IsLineEnd);
    const auto length = static_cast<std::size_t>(end - file.begin());
    const bool cut = end == file.end() && file.starts_with('"') && !file.ends_with('"');
    whole = !cut && TakeLine(file.substr(0, length)) && whole;
    file.remove_prefix(std::min(length + 1, file.size()));
  }
  return whole;
}

FileWritten ListSaveToFile(const RecordList& list, FileStore& files, const std::wstring& path,
                           const FileStamp& expected) {
  return files.Replace(path, list.bytes(), expected);
}

ListRead ListLoadFromFile(RecordList& list, const FileStore& files, const std::wstring& path) {
  const FileRead file = files.Read(path, kLargestFile);
  switch (file.result) {
    case FileResult::kDone:
      break;
    case FileResult::kMissing:
    case FileResult::kNoFolder:
      list.Clear();
      return {FileResult::kDone, FileState::kWhole, kNoFile};
    case FileResult::kTooLarge:
      list.Clear();
      return {FileResult::kDone, FileState::kMore, file.stamp};
    default:
      return {file.result, FileState::kMore, {}};
  }
  if (!list.Parse(file.bytes)) return {FileResult::kDone, FileState::kMore, file.stamp};
  const bool same = file.bytes == list.bytes();
  return {FileResult::kDone, same ? FileState::kSame : FileState::kWhole, file.stamp};
}

}  // namespace varnel
