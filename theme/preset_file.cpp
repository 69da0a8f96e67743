#include "theme/preset_file.h"

#include <utility>

#include "base/text.h"

namespace varnel {
namespace {

std::wstring Prefixed(std::wstring_view key) {
  return std::wstring(L"> ").append(key);
}

}  // namespace

void PresetFile::SelectPresetFile(std::wstring path) {
  StartPresetFile(std::move(path));
  const FileRead file = files_.Read(path_, kLargestFile);
  if (!file) {
    writable_ = file.result == FileResult::kMissing;
  } else if (auto text = IniText::FromBytes(file.bytes)) {
    text_ = *std::move(text);
    stored_ = text_.Bytes();
  } else {
    writable_ = false;
  }
}

void PresetFile::StartPresetFile(std::wstring path) {
  path_ = std::move(path);
  text_ = IniText();
  stored_.clear();
  writable_ = true;
}

std::wstring PresetFile::PresetKeyRead(std::wstring_view section, std::wstring_view key,
                                       std::wstring_view fallback) {
  const std::wstring value = Trim(text_.Value(section, Prefixed(key)));
  if (!value.empty()) return value;
  PresetKeyWrite(section, key, fallback);
  return Trim(fallback);
}

void PresetFile::PresetKeyWrite(std::wstring_view section, std::wstring_view key,
                                std::wstring_view value) {
  text_.SetValue(section, Prefixed(key), value);
}

bool PresetFile::Save() {
  const std::string bytes = text_.Bytes();
  if (bytes == stored_) return true;
  if (!writable_ || bytes.size() > kLargestFile || !files_.Replace(path_, bytes)) return false;
  stored_ = bytes;
  return true;
}

}  // namespace varnel
