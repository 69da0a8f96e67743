// Any text searched for any other. The first byte chooses options and where to start; the texts are
// parted by line feeds: wanted, replacement, text.
#include <string>

#include "base/letters.h"
#include "base/text.h"
#include "fuzz/require.h"
#include "widgets/notes/find/find_text.h"

using namespace varnel;

namespace {

std::wstring TakeLine(std::string_view& bytes) {
  const std::size_t end = std::min(bytes.find('\n'), bytes.size());
  std::wstring line;
  for (const wchar_t unit : WideFromUtf8(bytes.substr(0, end))) {
    AppendCharacter(line, static_cast<char32_t>(unit));
  }
  bytes.remove_prefix(std::min(end + 1, bytes.size()));
  return line;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  std::string_view bytes = BytesOf(data + 1, size - 1);
  const std::wstring wanted = TakeLine(bytes);
  const std::wstring by = TakeLine(bytes);
  const std::wstring text = TakeLine(bytes);
  const TextFinder finder(wanted, FindOptionsWord(data[0] % 2 == 1, data[0] / 2 % 2 == 1));
  const std::size_t from = data[0] / 4;

  const std::vector<std::size_t> hits = AllHits(text, finder);
  for (const std::size_t at : hits) {
    Require(at + wanted.size() <= text.size() &&
            finder.Equals(std::wstring_view(text).substr(at, wanted.size())));
    Require(HitNumber(hits, at) > 0);
  }
  const Replacements all = ReplaceAll(text, finder, by, from);
  Require(all.edits.size() <= all.count && (all.count > 0) == !all.edits.empty());
  std::size_t end = from;
  for (const TextEdit& edit : all.edits) {
    Require(edit.position >= end && edit.length >= wanted.size());
    end = edit.position + edit.length;
  }
  Require(end <= std::max(text.size(), from));
  // A replacement of the search text's length keeps every other position.
  if (by.size() == wanted.size()) Require(WithEdits(text, all.edits).size() == text.size());
  return 0;
}
