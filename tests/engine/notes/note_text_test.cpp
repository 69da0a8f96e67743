#include "widgets/notes/text/note_text.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/cases.h"
#include "tests/support/latin1_encoding.h"
#include "tests/support/rtf_samples.h"

namespace varnel {
namespace {

using namespace std::string_literals;

TEST(TextWordCount, BlanksPartWords) {
  const test::Cases<const wchar_t*, int> cases = {
      {L"", 0},
      {L" ", 0},
      {L"\r\n", 0},
      {L"-\r\n", 0},
      {L"a", 1},
      {L" a ", 1},
      {L"a  b", 3},
      {L"a\tb", 1},
      {L"well-\r\nknown", 2},
      {L"a\r\nb", 2},
      {L"a--\r\nb", 2},
      {L"- \r\n-", 3},
      {L"\r\na\r\n\r\n", 1},
      {L"a\r\n\r\nb", 3},
      {L"-", 1},
      {L"a\rb\nc", 1},
      {L"a -\r\n b", 4},
  };
  for (const auto& [text, words] : cases) EXPECT_EQ(TextWordCount(text), words) << text;
}

std::wstring Replaced(std::wstring_view text, std::wstring_view what, std::wstring_view with) {
  std::wstring replaced;
  std::size_t done = 0;
  for (std::size_t at = text.find(what); at != std::wstring_view::npos;
       at = text.find(what, done)) {
    replaced += text.substr(done, at - done);
    replaced += with;
    done = at + what.size();
  }
  return replaced += text.substr(done);
}

// The rule as it is written down.
int PlainWordCount(const std::wstring& text) {
  const std::wstring plain = Replaced(Replaced(text, L"-\r\n", L" "), L"\r\n", L" ");
  const std::size_t first = plain.find_first_not_of(L' ');
  if (first == std::wstring::npos) return 0;
  const auto begin = plain.begin() + static_cast<std::ptrdiff_t>(first);
  const auto end = plain.begin() + static_cast<std::ptrdiff_t>(plain.find_last_not_of(L' ') + 1);
  return static_cast<int>(std::count(begin, end, L' ')) + 1;
}

TEST(NoteText, CountsAfterAnyEditsAreThoseOfTheWholeText) {
  test::Chance chance(72);
  NoteText note;
  std::wstring plain;
  for (int step = 0; step < 400; ++step) {
    const std::size_t begin =
        static_cast<std::size_t>(test::Below(chance, static_cast<int>(plain.size()) + 1));
    const auto removed =
        static_cast<std::size_t>(test::Below(chance, step % 50 == 0 ? 20'000 : 40));
    const std::size_t end = std::min(plain.size(), begin + removed);
    std::wstring added;
    for (int i = test::Below(chance, step % 40 == 0 ? 20'000 : 60); i > 0; --i) {
      added += L"ab -\r\r x"[test::Below(chance, 8)];
    }
    note.Replace(begin, end, added);
    plain.replace(begin, end - begin, added);
    ASSERT_EQ(note.size(), plain.size());
    const std::wstring with_ends = Replaced(plain, L"\r", L"\r\n");
    ASSERT_EQ(note.Count(),
              (TextCounts{PlainWordCount(with_ends), static_cast<int>(with_ends.size())}));
    const std::size_t to = begin + static_cast<std::size_t>(test::Below(chance, 9000));
    const std::wstring part = plain.substr(begin, to - begin);
    ASSERT_EQ(note.Text(begin, to), part);
    const std::wstring part_with_ends = Replaced(part, L"\r", L"\r\n");
    ASSERT_EQ(note.Count(begin, to), (TextCounts{PlainWordCount(part_with_ends),
                                                 static_cast<int>(part_with_ends.size())}));
    ASSERT_EQ(note.LineEndsBefore(begin),
              std::count(plain.begin(), plain.begin() + static_cast<std::ptrdiff_t>(begin), L'\r'));
  }
  note.Replace(0, note.size() + 5, L"");
  EXPECT_EQ(note.Count(), TextCounts{});
}

TEST(TextFile, EncodingAndLineEndsAreKept) {
  const test::Latin1Encoding system;
  using enum TextEncoding;
  const test::Cases<std::string, std::wstring, TextEncoding, LineEnd> cases = {
      {"", L"", kUtf8, LineEnd::kCrLf},
      {"a\r\nb", L"a\rb", kUtf8, LineEnd::kCrLf},
      {"a\nb\n", L"a\rb\r", kUtf8, LineEnd::kLf},
      {"a\rb\r\rc", L"a\rb\r\rc", kUtf8, LineEnd::kCr},
      {"a\r\nb\nc\n\rd", L"a\rb\rc\r\rd", kUtf8, LineEnd::kLf},
      {"\xEF\xBB\xBF\xC3\xA4\r\n", L"\u00E4\r", kUtf8, LineEnd::kCrLf},
      {"\xF0\x9F\x98\x80", L"\xD83D\xDE00", kUtf8, LineEnd::kCrLf},
      {"\xC3\xA4", L"\u00E4", kUtf8, LineEnd::kCrLf},
      {"\xE4\n", L"\u00E4\r", kCodePage, LineEnd::kLf},
      {"\xFF\xFE\xE4\0\n\0"s, L"\u00E4\r", kUtf16Le, LineEnd::kLf},
      {"\xFE\xFF\0\xE4\xD8\x3D"s, L"\u00E4\xD83D", kUtf16Be, LineEnd::kCrLf},
      {"a\0b\0\r\0\n\0"s, L"ab\r", kUtf16Le, LineEnd::kCrLf},
      {"\0a\0b"s, L"ab", kUtf16Be, LineEnd::kCrLf},
  };
  for (const auto& [bytes, text, encoding, line_end] : cases) {
    const TextFile file = ReadText(bytes, system);
    EXPECT_EQ(file.text, text) << bytes;
    EXPECT_EQ(file.form.encoding, encoding) << bytes;
    EXPECT_EQ(file.form.line_end, line_end) << bytes;
    EXPECT_TRUE(file.exact) << bytes;
    EXPECT_EQ(WriteText(file.text, file.form, system), bytes);
  }
}

TEST(TextFile, NoLetterIsLostForAnEncoding) {
  const test::Latin1Encoding system;
  const test::Cases<std::string, std::wstring, std::string> cases = {
      {"", L"a\rb\vc", "a\r\nb\r\nc"},
      {"", L"\u0105", "\xEF\xBB\xBF\xC4\x85"},
      {"ascii\n", L"\u0105\r", "\xEF\xBB\xBF\xC4\x85\n"},
      {"\xC3\xA4", L"a", "a"},
      {"\xEF\xBB\xBF"
       "a",
       L"b",
       "\xEF\xBB\xBF"
       "b"},
      {"\xE4", L"\u00E5", "\xE5"},
      {"\xE4", L"\u0105", "\xEF\xBB\xBF\xC4\x85"},
      {"a\r\nb\nc\n", L"x\ry\rz\r", "x\r\ny\nz\n"},
      {"a\r\nb\nc\n", L"x\ry\r", "x\ny\n"},
  };
  for (const auto& [old_file, text, bytes] : cases) {
    const TextForm form = old_file.empty() ? TextForm() : ReadText(old_file, system).form;
    EXPECT_EQ(WriteText(text, form, system), bytes) << old_file;
  }
  for (const std::string& binary : {"a\0bcdefghijklmn\xFF"s,
                                    "\xFF\xFE"
                                    "a"s,
                                    "a\vb"s}) {
    const TextFile file = ReadText(binary, system);
    EXPECT_FALSE(file.exact);
    EXPECT_EQ(file.text.find(L'\0'), std::wstring::npos);
  }
}

}  // namespace
}  // namespace varnel
