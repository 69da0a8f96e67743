// Plain text files: which encoding and line ends they have, and how to keep them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varnel {

enum class TextEncoding : std::uint8_t { kUtf8, kUtf16Le, kUtf16Be, kCodePage };
enum class LineEnd : std::uint8_t { kCrLf, kLf, kCr };

// The system's own encoding, where one character is one or two bytes.
class SystemEncoding {
 public:
  virtual ~SystemEncoding() = default;
  virtual std::wstring Read(std::string_view bytes) const = 0;
  virtual std::string Write(std::wstring_view text) const = 0;  // may lose what it lacks
};

// How a text is stored. The default is a new file's.
struct TextForm {
  TextEncoding encoding = TextEncoding::kUtf8;
  bool mark = true;   // a byte-order mark; UTF-8 takes none while all is ASCII and `ascii` is true
  bool ascii = true;  // the file is new or held nothing but ASCII
  LineEnd line_end = LineEnd::kCrLf;  // the most frequent one
  std::vector<LineEnd> line_ends;     // of each line, when they differ; else empty
};

struct TextFile {
  std::wstring text;  // UTF-16 units in every build, lines ended by CR alone, as editors have it
  TextForm form;
  bool exact = true;  // WriteText(text, form) gives the very bytes; otherwise some cannot be kept
};

// A mark decides; without one zero bytes tell UTF-16, then valid UTF-8 is that, and all else is in
// the system's encoding. Zero characters become U+FFFD.
TextFile ReadText(std::string_view bytes, const SystemEncoding& system);

// The file for a text as ReadText gives it; VT ends a line too. Each line keeps its own end while
// there are as many as before. A text that the system's encoding cannot hold is written as UTF-8
// with a mark.
std::string WriteText(std::wstring_view text, const TextForm& form, const SystemEncoding& system);

}  // namespace varnel
