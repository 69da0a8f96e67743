// Which document the notes widget shows, and the rules that name its file.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/wall_clock.h"

namespace varnel {

enum class NoteType : std::uint8_t { kRtf, kTxt };

// Tells whether a path is that of an existing file.
using FileExists = std::function<bool(const std::wstring& path)>;

// "RTF" or "TXT".
std::wstring_view NoteTypeName(NoteType type);
// What follows the last backslash.
std::wstring_view FileTitle(std::wstring_view path);
// The file title without its extension, however long that is; a title that begins with its only dot
// stays whole.
std::wstring_view NoteTitle(std::wstring_view path);
// What follows the file title's last dot, in upper case; empty without a dot, or with nothing
// before it.
std::wstring NoteExtension(std::wstring_view path);
// RTF for that extension, plain text for any other and for none.
NoteType NoteTypeOf(std::wstring_view path);

// folder (with its trailing backslash) & "yymmdd" & hour, minute and second without leading zeros &
// "_" & current & "." & type. Of a full path in `current` only the title goes in. " (2)", " (3)"
// and so on is added while the name exists.
std::wstring GeneratedNotePath(std::wstring_view folder, const LocalTime& now,
                               std::wstring_view current, NoteType type, const FileExists& exists);

struct NoteExport {
  std::wstring path;  // as chosen, completed; written to where it exists
  NoteType type = NoteType::kRtf;
};
// What the export dialog's answer means: `filter` counts from 1. The filter decides the type,
// whatever the extension; a name without one gets ".rtf" or ".txt".
NoteExport NoteExportOf(std::wstring_view chosen, int filter);

enum class RenameStep : std::uint8_t { kNothing, kRename, kAsk, kRefuse };
struct NoteRename {
  RenameStep step = RenameStep::kNothing;
  std::wstring path;  // the new one; empty for kNothing and kRefuse
};
// What a new label means for the file at `old_path`: its name becomes the label with the lower-case
// type of the note in the editor. Nothing happens for its own name, kAsk stands for another file's
// name, kRefuse for what cannot be a file's name.
NoteRename NoteRenameOf(std::wstring_view old_path, std::wstring_view folder,
                        std::wstring_view label, NoteType open_type, const FileExists& exists);

// One entry of the list beside the editor.
struct NoteListItem {
  std::wstring key;   // its number, from 1, and "M"
  std::wstring text;  // the file's name without extension
  int icon = 2;       // 1 for names that end in "RTF" in any case
  std::wstring path;
};
NoteListItem NoteListItemOf(int number, std::wstring_view folder, std::wstring_view file_name);

// The item to select after the one at `removed` went, of `left` that remain: the one before, or the
// first; nothing when none is left.
std::optional<int> SelectionAfterDelete(int removed, int left);

// The document in the editor. It says what has to happen; files are others' work.
class NoteDocument {
 public:
  explicit NoteDocument(std::int32_t counter = 0) : counter_(counter) {}

  // An empty note of that type, with the next number and its provisional title as path. False, and
  // nothing changed, once the counter has reached the greatest 32-bit number. A changed note is to
  // be saved before.
  bool StartNew(NoteType type);
  // The new note now shows that file, and is to be saved as that type.
  void Opened(std::wstring_view path, NoteType type);
  // The editor changed, by the user's hand or, while `loading`, by the program's.
  void Changed(bool loading) { modified_ = modified_ || !loading; }
  // The document was written to that path, which is now its own.
  void Saved(std::wstring_view path);
  // A save on closing that the user does not want: the changes count as none.
  void DropChanges() { modified_ = false; }
  // It was written to a file of the user's choice. Where that file existed, it is a copy: path and
  // type stay. Otherwise it was saved under a generated path.
  void Exported(const NoteExport& chosen, std::wstring_view written);
  // The file of the shown note has got another name.
  void Renamed(std::wstring_view old_path, std::wstring_view new_path);

  const std::wstring& path() const { return path_; }  // or the provisional title
  std::wstring title() const { return std::wstring(NoteTitle(path_)); }
  NoteType type() const { return type_; }
  std::int32_t number() const { return number_; }
  bool modified() const { return modified_; }

 private:
  std::wstring path_;
  NoteType type_ = NoteType::kRtf;
  std::int32_t counter_;
  std::int32_t number_ = 0;
  bool modified_ = false;
};

}  // namespace varnel
