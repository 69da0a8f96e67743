#include "widgets/notes/spelling/spell_checker.h"

#include <algorithm>

#include "base/letters.h"
#include "base/text.h"

namespace varnel {
namespace {

constexpr std::wstring_view kOwnWordsFile = L"Words backup.dic";
constexpr std::wstring_view kCorrectionsFile = L"Words corrected.dic";
constexpr std::string_view kLineEnd = "\r\n";

// A word as dictionaries hold it.
std::wstring RecordOf(std::wstring_view word) {
  std::wstring record = Trim(WithStraightApostrophes(word));
  std::erase_if(record, [](wchar_t unit) { return unit == L',' || unit == L'.'; });
  return record;
}

std::wstring_view TextIn(std::wstring_view text, TextRange range) {
  return text.substr(range.begin, range.end - range.begin);
}

}  // namespace

SpellOptions ReadSpellOptions(const Settings& settings) {
  return {ReadCheck(settings, kSpellNumbers), ReadCheck(settings, kSpellCapitals),
          ReadCheck(settings, kSpellCharacters)};
}

clsNOTsp::clsNOTsp(FileStore& files, Settings& settings, std::wstring folder,
                   std::function<std::string_view()> packed_words)
    : files_(files),
      settings_(settings),
      folder_(std::move(folder)),
      packed_words_(std::move(packed_words)),
      own_(files, folder_ + std::wstring(kOwnWordsFile)),
      corrections_(files, folder_ + std::wstring(kCorrectionsFile)) {
  if (ReadCheck(settings_, kSpellLoadFirst)) DatabaseLoadCheck();
}

std::wstring clsNOTsp::DictionaryName() const {
  std::wstring name = settings_.Read(kSpellDictionary);
  const bool is_plain = name.find_first_of(L"\\/:*?\"<>|") == std::wstring::npos;
  return is_plain ? name : std::wstring(kAmericanDictionary);
}

bool clsNOTsp::CheckFile() {
  if (!files_.FolderExists(folder_)) files_.CreateFolder(folder_);
  for (const auto& [name, kind] : {std::pair(kAmericanDictionary, WordListKind::kAmerican),
                                   std::pair(kBritishDictionary, WordListKind::kBritish)}) {
    const std::wstring path = folder_ + std::wstring(name);
    if (files_.FileExists(path)) continue;
    if (const auto list = UnpackWordList(packed_words_(), kind))
      files_.Replace(path, *list, kNoFile);
  }
  return files_.FileExists(folder_ + DictionaryName());
}

bool clsNOTsp::DatabaseLoadCheck() {
  const std::wstring name = DictionaryName();
  if (loaded_ == name) return true;
  loaded_.clear();
  list_ = {};
  if (!own_loaded_) {
    own_.Load();
    corrections_.Load();
    own_loaded_ = true;
  }
  if (!CheckFile()) return false;
  const FileRead file = files_.Read(folder_ + name, kLargestWordList);
  if (!file) return false;
  WordList list(file.bytes);
  if (list.count() == 0) return false;
  list_ = std::move(list);
  loaded_ = name;
  for (const std::wstring& word : own_.words()) {
    if (!list_.Holds(word) && list_.Add(word)) AppendRecord(word);
  }
  return true;
}

bool clsNOTsp::DatabaseSave() {
  const bool own = own_.Save();
  return corrections_.Save() && own;
}

// The file is read for its last line: somebody else may have changed it meanwhile.
bool clsNOTsp::AppendRecord(std::wstring_view word) {
  const std::wstring path = folder_ + loaded_;
  const std::string record = EncodeWord(word, list_.encoding());
  const FileRead file = files_.Read(path, kLargestWordList);
  if (record.empty() || !file) return false;
  const bool open_line =
      !file.bytes.empty() && !file.bytes.ends_with('\n') && !file.bytes.ends_with('\r');
  std::string added(open_line ? kLineEnd : "");
  added += record;
  added += kLineEnd;
  return static_cast<bool>(files_.Append(path, file.stamp, added));
}

WordAddResult clsNOTsp::WordAdd(std::wstring_view word) {
  const std::wstring record = RecordOf(word);
  DatabaseLoadCheck();
  if (list_.Holds(record)) return WordAddResult::kThere;
  if (!list_.Add(record)) return WordAddResult::kNotAWord;
  const bool kept = own_.Add(record);
  const bool appended = !loaded_.empty() && AppendRecord(record);
  return kept && appended ? WordAddResult::kAdded : WordAddResult::kUnsaved;
}

bool clsNOTsp::OwnWordRemove(std::wstring_view word) {
  const std::vector<std::wstring> before = own_.words();
  if (!own_.Remove(word)) return false;
  for (const std::wstring_view name : {kAmericanDictionary, kBritishDictionary}) {
    RemoveRecord(folder_ + std::wstring(name), word, before);
  }
  loaded_.clear();  // the list may have a word of its own that is equal
  DatabaseLoadCheck();
  return true;
}

void clsNOTsp::RemoveRecord(const std::wstring& path, std::wstring_view word,
                            const std::vector<std::wstring>& own) {
  const FileRead file = files_.Read(path, kLargestWordList);
  if (!file) return;
  const WordEncoding encoding = WordList(file.bytes).encoding();
  std::vector<std::string> records;
  for (const std::wstring& one : own) records.push_back(EncodeWord(one, encoding));
  const auto left = WithoutRecord(file.bytes, EncodeWord(word, encoding), records);
  if (left) files_.Replace(path, *left, file.stamp);
}

bool clsNOTsp::IsRight(std::wstring_view word) const {
  std::wstring straight;
  if (word.find(L'\x2019') != std::wstring_view::npos) {
    straight = WithStraightApostrophes(word);
    word = straight;
  }
  if (IsKnown(word, options_, list_) || (options_.numbers && !HasLetter(word))) return true;
  const std::wstring folded = FoldCase(word);
  if (ignored_.contains(folded)) return true;
  const auto in_note = ignored_in_.find(note_);
  return in_note != ignored_in_.end() && in_note->second.contains(folded);
}

Suggestions clsNOTsp::SuggestionsOf(std::wstring_view word) const {
  Suggestions found = SuggestionsFor(WithStraightApostrophes(word), list_);
  found.proposed = TakeCapital(found.proposed, word);
  const std::wstring taught = corrections_.Of(WithStraightApostrophes(word));
  if (!taught.empty()) {
    found.proposed = TakeCapital(taught, word);
    std::erase(found.words, taught);
    std::erase(found.words, found.proposed);
    found.words.insert(found.words.begin(), found.proposed);
  }
  return found;
}

SpellStep clsNOTsp::SpellChecker(std::wstring_view text, std::size_t caret) {
  SpellStep step;
  if (!DatabaseLoadCheck()) {
    step.kind = SpellStep::Kind::kNoDictionary;
    return step;
  }
  options_ = ReadSpellOptions(settings_);
  if (!run_.running()) {
    ignored_.clear();
    run_.Start(text, caret);
  }
  const auto found = run_.Next(text, [this](std::wstring_view word) { return IsRight(word); });
  if (!found) return step;
  step.kind = SpellStep::Kind::kUnknownWord;
  step.range = *found;
  step.word = TextIn(text, *found);
  step.suggestions = SuggestionsOf(step.word);
  return step;
}

void clsNOTsp::TextEdited(std::size_t at, std::size_t removed, std::size_t inserted) {
  run_.TextEdited(at, removed, inserted);
}

void clsNOTsp::NoteShown(std::wstring_view name) {
  note_ = name;
  SpellStop();
}

std::optional<TextEdit> clsNOTsp::WordChng(std::wstring_view text, std::wstring_view replacement) {
  if (!run_.current() || replacement.empty() || run_.current()->end > text.size()) {
    return std::nullopt;
  }
  const TextRange range = *run_.current();
  corrections_.Add(WithStraightApostrophes(TextIn(text, range)),
                   WithStraightApostrophes(replacement));
  run_.WordReplaced(replacement.size());
  return TextEdit{range.begin, range.end - range.begin, std::wstring(replacement)};
}

std::vector<TextEdit> clsNOTsp::WordChngAll(std::wstring_view text, std::wstring_view replacement) {
  const auto current = run_.current();
  if (!current || current->end > text.size()) return {};
  const std::wstring wanted = FoldCase(TextIn(text, *current));
  if (!WordChng(text, replacement)) return {};
  std::vector<TextEdit> edits;
  std::size_t shift =
      0;  // modulo the range of a position: how far earlier edits have moved the text
  for (auto word = NextWord(text, 0); word; word = NextWord(text, word->end)) {
    const std::wstring_view found = TextIn(text, *word);
    if (found.size() != wanted.size() || FoldCase(found) != wanted) continue;
    const bool is_current = *word == *current;
    std::wstring by = is_current ? std::wstring(replacement) : TakeCapital(replacement, found);
    // The current one has been told to the run already, by WordChng.
    if (!is_current) run_.TextEdited(word->begin + shift, found.size(), by.size());
    shift += by.size() - found.size();
    edits.push_back({word->begin, found.size(), std::move(by)});
  }
  return edits;
}

void clsNOTsp::WordIgnore(std::wstring_view word, IgnoreScope scope) {
  const std::wstring folded = FoldCase(WithStraightApostrophes(word));
  if (scope == IgnoreScope::kCheck) ignored_.insert(folded);
  if (scope == IgnoreScope::kNote) ignored_in_[note_].insert(folded);
}

}  // namespace varnel
