#include "widgets/notes/text/text_file.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "widgets/notes/text/utf16_units.h"

namespace varnel {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LeMark = "\xFF\xFE";
constexpr std::string_view kUtf16BeMark = "\xFE\xFF";
constexpr wchar_t kNoCharacter = static_cast<wchar_t>(0xFFFD);

std::string_view MarkOf(TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::kUtf8:
      return kUtf8Mark;
    case TextEncoding::kUtf16Le:
      return kUtf16LeMark;
    case TextEncoding::kUtf16Be:
      return kUtf16BeMark;
    case TextEncoding::kCodePage:
      break;
  }
  return {};
}

bool IsAscii(std::string_view bytes) {
  return std::ranges::all_of(bytes,
                             [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// Latin text has a zero in one byte of most pairs, and always in the same one.
TextEncoding EncodingWithoutMark(std::string_view bytes) {
  std::array<std::size_t, 2> zeros{};
  for (std::size_t i = 0; i < bytes.size(); ++i) zeros[i % 2] += bytes[i] == '\0' ? 1 : 0;
  const std::size_t enough = std::max<std::size_t>(bytes.size() / 8, 1);
  if (bytes.size() % 2 == 0 && zeros[0] + zeros[1] >= enough) {
    if (zeros[0] * 8 <= zeros[1]) return TextEncoding::kUtf16Le;
    if (zeros[1] * 8 <= zeros[0]) return TextEncoding::kUtf16Be;
  }
  const bool valid = Utf8FromWide(WideFromUtf8(bytes)) == bytes;
  return valid ? TextEncoding::kUtf8 : TextEncoding::kCodePage;
}

std::wstring Decoded(std::string_view bytes, TextEncoding encoding, const SystemEncoding& system) {
  if (encoding == TextEncoding::kUtf8) return Utf16Units(WideFromUtf8(bytes));
  if (encoding == TextEncoding::kCodePage) return Utf16Units(system.Read(bytes));
  std::wstring text;
  const std::size_t high = encoding == TextEncoding::kUtf16Le ? 1 : 0;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto upper = static_cast<unsigned char>(bytes[i + high]);
    const auto lower = static_cast<unsigned char>(bytes[i + 1 - high]);
    text.push_back(static_cast<wchar_t>(upper << 8 | lower));
  }
  if (bytes.size() % 2 == 1) text.push_back(kNoCharacter);
  return text;
}

std::string Encoded(std::wstring_view text, TextEncoding encoding, const SystemEncoding& system) {
  if (encoding == TextEncoding::kUtf8) return Utf8FromWide(text);
  if (encoding == TextEncoding::kCodePage) return system.Write(text);
  std::string bytes;
  bytes.reserve(text.size() * 2);
  for (const wchar_t unit : text) {
    const auto lower = static_cast<char>(unit & 0xFF);
    const auto upper = static_cast<char>(unit >> 8 & 0xFF);
    const bool little = encoding == TextEncoding::kUtf16Le;
    bytes.push_back(little ? lower : upper);
    bytes.push_back(little ? upper : lower);
  }
  return bytes;
}

// Makes every line end a CR, and tells which they were.
std::wstring WithPlainEnds(std::wstring_view text, TextForm& form) {
  std::wstring plain;
  plain.reserve(text.size());
  std::array<std::size_t, 3> counts{};
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t unit = text[i] == L'\0' ? kNoCharacter : text[i];
    if (unit != L'\r' && unit != L'\n') {
      plain.push_back(unit);
      continue;
    }
    const bool both = unit == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n';
    const LineEnd end = both ? LineEnd::kCrLf : unit == L'\n' ? LineEnd::kLf : LineEnd::kCr;
    i += both ? 1 : 0;
    ++counts[static_cast<std::size_t>(end)];
    form.line_ends.push_back(end);
    plain.push_back(L'\r');
  }
  const auto most = std::ranges::max_element(counts);
  form.line_end = static_cast<LineEnd>(most - counts.begin());
  if (*most == form.line_ends.size()) form.line_ends.clear();
  return plain;
}

std::wstring WithOwnEnds(std::wstring_view text, const TextForm& form) {
  constexpr std::wstring_view kEnds[] = {L"\r\n", L"\n", L"\r"};
  const auto is_end = [](wchar_t unit) { return unit == L'\r' || unit == L'\v'; };
  const auto lines = static_cast<std::size_t>(std::ranges::count_if(text, is_end));
  const bool each = lines == form.line_ends.size();
  std::wstring out;
  out.reserve(text.size() + lines);
  std::size_t line = 0;
  for (const wchar_t unit : text) {
    if (!is_end(unit)) {
      out.push_back(unit);
    } else {
      const LineEnd end = each ? form.line_ends[line++] : form.line_end;
      out += kEnds[static_cast<std::size_t>(end)];
    }
  }
  return out;
}

}  // namespace

TextFile ReadText(std::string_view bytes, const SystemEncoding& system) {
  TextFile file;
  TextForm& form = file.form;
  form.mark = false;
  for (const TextEncoding encoding :
       {TextEncoding::kUtf8, TextEncoding::kUtf16Le, TextEncoding::kUtf16Be}) {
    if (form.mark || !bytes.starts_with(MarkOf(encoding))) continue;
    form.mark = true;
    form.encoding = encoding;
  }
  if (!form.mark) form.encoding = EncodingWithoutMark(bytes);
  form.ascii = !form.mark && form.encoding == TextEncoding::kUtf8 && IsAscii(bytes);
  const std::string_view content = form.mark ? bytes.substr(MarkOf(form.encoding).size()) : bytes;
  file.text = WithPlainEnds(Decoded(content, form.encoding, system), form);
  if (form.ascii) form.mark = true;  // should it become more than ASCII
  file.exact = WriteText(file.text, form, system) == bytes;
  return file;
}

std::string WriteText(std::wstring_view text, const TextForm& form, const SystemEncoding& system) {
  const std::wstring out = WithOwnEnds(text, form);
  std::string bytes = Encoded(out, form.encoding, system);
  TextEncoding encoding = form.encoding;
  bool mark = form.mark;
  if (encoding == TextEncoding::kCodePage && Utf16Units(system.Read(bytes)) != out) {
    encoding = TextEncoding::kUtf8;
    mark = true;
    bytes = Utf8FromWide(out);
  }
  if (form.ascii && encoding == TextEncoding::kUtf8 && IsAscii(bytes)) mark = false;
  return mark ? std::string(MarkOf(encoding)) + bytes : bytes;
}

}  // namespace varnel
