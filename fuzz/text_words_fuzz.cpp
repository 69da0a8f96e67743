// Any text, its words, and a check of it that is interrupted by edits. The first bytes choose the
// caret and the edits.
#include <string>

#include "base/letters.h"
#include "base/text.h"
#include "fuzz/require.h"
#include "widgets/notes/spelling/spell_run.h"
#include "widgets/notes/text/text_words.h"

using namespace varnel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kChoices = 8;
  if (size < kChoices) return 0;
  // Pairs of units, as on the platform, whatever the width of a unit here.
  std::wstring text;
  for (const wchar_t unit : WideFromUtf8(BytesOf(data + kChoices, size - kChoices))) {
    AppendCharacter(text, static_cast<char32_t>(unit));
  }
  std::size_t end = 0;
  for (auto word = NextWord(text, 0); word; word = NextWord(text, word->end)) {
    Require(word->begin >= end && word->begin < word->end && word->end <= text.size());
    for (std::size_t at = word->begin; at < word->end; ++at) Require(!IsWordGap(text[at]));
    end = word->end;
  }
  SpellRun run;
  run.Start(text, data[0]);
  std::size_t steps = 0;
  const auto is_right = [&](std::wstring_view word) { return word.size() % 3 == data[1] % 3; };
  while (const auto word = run.Next(text, is_right)) {
    Require(word->end <= text.size() && word == run.current());
    Require(++steps <= text.size() + 100);
    if (steps >= 20) continue;
    const std::size_t at = data[2 + steps % 4] % (text.size() + 1);
    const std::size_t removed = std::min<std::size_t>(data[6] % 8, text.size() - at);
    const std::size_t inserted = data[7] % 5;
    if (steps % 2 == 0) {
      text.replace(word->begin, word->end - word->begin, L"a b");
      run.WordReplaced(3);
    } else {
      text.replace(at, removed, std::wstring(inserted, L'e'));
      run.TextEdited(at, removed, inserted);
    }
  }
  Require(!run.running());
  return 0;
}
