// Any bytes as a dictionary, as packed lists and as a dictionary that words are added to and taken
// from.
#include <string>

#include "base/text.h"
#include "fuzz/require.h"
#include "widgets/notes/spelling/own_words.h"
#include "widgets/notes/spelling/packed_words.h"
#include "widgets/notes/spelling/spell_rules.h"
#include "widgets/notes/spelling/word_list.h"

using namespace varnel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = BytesOf(data, size);
  WordList list(bytes);
  Require(list.count() <= size);
  const SpellOptions strict{false, false, false};
  for (std::size_t i = 0; i < list.count() && i < 50; ++i) {
    const std::wstring word = list.Word(i);
    Require(!word.empty() && word.size() <= kLongestListWord && list.Holds(word));
    bool in_bucket = false;
    for (const auto& [key, index] : list.Bucket(PhoneticKey(word))) in_bucket |= index == i;
    Require(in_bucket);
    IsKnown(word, strict, list);
    if (i < 3) Require(SuggestionsFor(word, list).words.size() <= list.count());
  }
  if (list.Add(L"zzadded"))
    Require(list.Holds(L"zzAdded") && list.Bucket(PhoneticKey(L"zzadded")).size() > 0);

  std::string record = EncodeWord(L"zzadded", list.encoding());
  const std::string grown = std::string(bytes) + "\r\n" + record + "\r\n";
  const auto left = WithoutRecord(grown, record, {&record, 1});
  Require(left && left->size() + record.size() + 2 == grown.size());

  const auto unpacked = UnpackWordList(bytes, WordListKind::kAmerican);
  Require(!unpacked || unpacked->size() <= 66 * size);
  return 0;
}
