// spelling PACKED us|uk reads a text in UTF-8 and prints every word that the spelling check would
// stop at, one a line, with the options as they are at first. PACKED is the file of packed word
// lists.
#include <cstdio>
#include <string>
#include <string_view>

#include "base/text.h"
#include "widgets/notes/spelling/packed_words.h"
#include "widgets/notes/spelling/spell_rules.h"
#include "widgets/notes/text/text_words.h"

namespace {

std::string ReadAll(std::FILE* file) {
  std::string bytes;
  char part[65536];
  while (const std::size_t count = std::fread(part, 1, sizeof(part), file)) {
    bytes.append(part, count);
  }
  return bytes;
}

}  // namespace

int main(int count, char** words) {
  using namespace varnel;
  std::FILE* packed = count == 3 ? std::fopen(words[1], "rb") : nullptr;
  if (packed == nullptr) return 2;
  const auto kind =
      words[2] == std::string_view("uk") ? WordListKind::kBritish : WordListKind::kAmerican;
  const auto bytes = UnpackWordList(ReadAll(packed), kind);
  std::fclose(packed);
  if (!bytes) return 2;
  const WordList list(*bytes);
  const std::wstring text = WideFromUtf8(ReadAll(stdin));
  for (auto word = NextWord(text, 0); word; word = NextWord(text, word->end)) {
    const std::wstring found = WithStraightApostrophes(
        std::wstring_view(text).substr(word->begin, word->end - word->begin));
    const bool right = IsKnown(found, {}, list) || !HasLetter(found);
    if (!right) std::printf("%s\n", Utf8FromWide(found).c_str());
  }
  return 0;
}
