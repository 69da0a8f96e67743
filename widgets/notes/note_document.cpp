#include "widgets/notes/note_document.h"

#include <limits>

#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

std::wstring ExtensionFor(NoteType type) {
  return type == NoteType::kRtf ? L".rtf" : L".txt";
}

std::size_t DotOf(std::wstring_view title) {
  const std::size_t dot = title.rfind(L'.');
  return dot == 0 ? std::wstring_view::npos : dot;
}

}  // namespace

std::wstring_view NoteTypeName(NoteType type) {
  return type == NoteType::kRtf ? L"RTF" : L"TXT";
}

std::wstring_view FileTitle(std::wstring_view path) {
  const std::size_t slash = path.rfind(L'\\');
  return slash == std::wstring_view::npos ? path : path.substr(slash + 1);
}

std::wstring_view NoteTitle(std::wstring_view path) {
  const std::wstring_view title = FileTitle(path);
  return title.substr(0, DotOf(title));
}

std::wstring NoteExtension(std::wstring_view path) {
  const std::wstring_view title = FileTitle(path);
  const std::size_t dot = DotOf(title);
  if (dot == std::wstring_view::npos) return {};
  std::wstring extension(title.substr(dot + 1));
  for (wchar_t& unit : extension) {
    if (unit >= L'a' && unit <= L'z') unit = static_cast<wchar_t>(unit - L'a' + L'A');
  }
  return extension;
}

NoteType NoteTypeOf(std::wstring_view path) {
  return NoteExtension(path) == NoteTypeName(NoteType::kRtf) ? NoteType::kRtf : NoteType::kTxt;
}

std::wstring GeneratedNotePath(std::wstring_view folder, const LocalTime& now,
                               std::wstring_view current, NoteType type, const FileExists& exists) {
  const bool full = current.find(L'\\') != std::wstring_view::npos;
  std::wstring base(folder);
  for (const int part : {now.year % 100, now.month, now.day}) base += PaddedNumber(part, 2);
  for (const int part : {now.hour, now.minute, now.second}) base += std::to_wstring(part);
  base += L"_" + std::wstring(full ? NoteTitle(current) : current);
  const std::wstring extension = L"." + std::wstring(NoteTypeName(type));
  std::wstring path = base + extension;
  for (int copy = 2; exists(path); ++copy) {
    path = base + L" (" + std::to_wstring(copy) + L")" + extension;
  }
  return path;
}

NoteExport NoteExportOf(std::wstring_view chosen, int filter) {
  NoteExport result{std::wstring(chosen), filter == 1 ? NoteType::kRtf : NoteType::kTxt};
  if (NoteExtension(chosen).empty()) result.path += ExtensionFor(result.type);
  return result;
}

NoteRename NoteRenameOf(std::wstring_view old_path, std::wstring_view folder,
                        std::wstring_view label, NoteType open_type, const FileExists& exists) {
  const std::optional<std::wstring> name = SafeFileName(label);
  if (!name) return {RenameStep::kRefuse, {}};
  const std::wstring path = std::wstring(folder) + *name + ExtensionFor(open_type);
  if (path == old_path || *name == NoteTitle(old_path)) return {};
  // Another spelling of its own name is no other file.
  const bool ask = !EqualsIgnoreCase(path, old_path) && exists(path);
  return {ask ? RenameStep::kAsk : RenameStep::kRename, path};
}

NoteListItem NoteListItemOf(int number, std::wstring_view folder, std::wstring_view file_name) {
  return {std::to_wstring(number) + L"M", std::wstring(NoteTitle(file_name)),
          EndsWithIgnoreCase(file_name, NoteTypeName(NoteType::kRtf)) ? 1 : 2,
          std::wstring(folder) + std::wstring(file_name)};
}

std::optional<int> SelectionAfterDelete(int removed, int left) {
  if (left <= 0) return std::nullopt;
  return removed > 0 ? removed - 1 : 0;
}

bool NoteDocument::StartNew(NoteType type) {
  if (counter_ == std::numeric_limits<std::int32_t>::max()) return false;
  number_ = ++counter_;
  type_ = type;
  path_ = (type == NoteType::kRtf ? L"Tavrin " : L"Notes ") + std::to_wstring(number_);
  modified_ = false;
  return true;
}

void NoteDocument::Opened(std::wstring_view path, NoteType type) {
  path_ = path;
  type_ = type;
  modified_ = false;
}

void NoteDocument::Saved(std::wstring_view path) {
  path_ = path;
  modified_ = false;
}

void NoteDocument::Exported(const NoteExport& chosen, std::wstring_view written) {
  modified_ = false;
  if (written == chosen.path) return;
  path_ = written;
  type_ = chosen.type;
}

void NoteDocument::Renamed(std::wstring_view old_path, std::wstring_view new_path) {
  if (EqualsIgnoreCase(path_, old_path)) path_ = new_path;
}

}  // namespace varnel
