// The spelling check of the notes: its dictionary, what the user adds to it, and a check of a text.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/file_store.h"
#include "base/settings.h"
#include "widgets/notes/spelling/own_words.h"
#include "widgets/notes/spelling/packed_words.h"
#include "widgets/notes/spelling/spell_rules.h"
#include "widgets/notes/spelling/spell_run.h"
#include "widgets/notes/spelling/word_list.h"
#include "widgets/notes/text/text_edit.h"

namespace varnel {

inline constexpr std::wstring_view kAmericanDictionary = L"wordsus.dct";
inline constexpr std::wstring_view kBritishDictionary = L"wordsuk.dct";
inline constexpr Setting kSpellDictionary{L"frmNOTwg\\Details", L"Spell Checker Language Version",
                                          kAmericanDictionary};
inline constexpr Setting kSpellNumbers{L"frmNOTwg\\Details", L"Spell Number Check", L"1"};
inline constexpr Setting kSpellCapitals{L"frmNOTwg\\Details", L"Spell Capitals Check", L"1"};
inline constexpr Setting kSpellCharacters{L"frmNOTwg\\Details", L"Spell Characters Check", L"1"};
inline constexpr Setting kSpellLoadFirst{L"frmNOTwg\\Details", L"Spell Check Load on First", L"0"};

// Shown when the dictionary cannot be read or holds no word.
inline constexpr std::wstring_view kDictionaryNotFound = L"Dictionary not found";

SpellOptions ReadSpellOptions(const Settings& settings);

// What one step of a check found.
struct SpellStep {
  enum class Kind { kUnknownWord, kFinished, kNoDictionary };
  Kind kind = Kind::kFinished;
  TextRange range;          // of the unknown word
  std::wstring word;        // as it stands in the text
  Suggestions suggestions;  // an earlier correction of the word comes first
};

enum class WordAddResult {
  kAdded,     // and written
  kUnsaved,   // known from now on, but a file could not be written
  kThere,     // the dictionary has it already
  kNotAWord,  // empty, too long, or with control characters
};
enum class IgnoreScope { kOnce, kCheck, kNote };

class clsNOTsp {
 public:
  // `folder` is where the dictionaries are and ends in "\"; `packed_words` gives the lists that the
  // program carries and is asked only when one is missing. Everything given outlives the checker.
  // Where the setting asks for it, the dictionary is loaded at once.
  clsNOTsp(FileStore& files, Settings& settings, std::wstring folder,
           std::function<std::string_view()> packed_words);

  // Makes the folder and writes a dictionary that is missing; one that is there is never touched.
  // True when the dictionary in use is there afterwards.
  bool CheckFile();
  // Loads the dictionary in use when another one, or none, is loaded. Own words that it lacks are
  // added to it again. False, with no word known, when it cannot be read or holds no word.
  bool DatabaseLoadCheck();
  // Writes own words and corrections that could not be written before; true when all is written.
  bool DatabaseSave();

  // The next unknown word of `text`, which is selected then. A check that is not running begins at
  // the word at `caret`.
  SpellStep SpellChecker(std::wstring_view text, std::size_t caret);
  bool checking() const { return run_.running(); }
  void SpellStop() { run_ = {}; }
  // Every edit of the text while a check runs, except those that this class has made up.
  void TextEdited(std::size_t at, std::size_t removed, std::size_t inserted);
  // The note that is checked from now on, by a name of its own; ends the running check.
  void NoteShown(std::wstring_view name);

  // Whether a word of a text counts as right now: known, ignored, or without a letter and numbers
  // are taken as right.
  bool IsRight(std::wstring_view word) const;
  Suggestions SuggestionsOf(std::wstring_view word) const;

  // Puts `replacement` in place of the unknown word found last: the edit to make, which is not
  // checked again, and keeps the pair. Nothing when there is no such word or it was edited.
  std::optional<TextEdit> WordChng(std::wstring_view text, std::wstring_view replacement);
  // The same for that word wherever it stands in the text, in any case, each with its own capital.
  std::vector<TextEdit> WordChngAll(std::wstring_view text, std::wstring_view replacement);
  void WordIgnore(std::wstring_view word, IgnoreScope scope);
  // Adds a word to the dictionary in use, as one record at its end, and to the own words. Commas
  // and stops, which a look-up leaves out, are no part of it.
  WordAddResult WordAdd(std::wstring_view word);

  const std::vector<std::wstring>& own_words() const { return own_.words(); }
  // Takes an own word out of the own words and both dictionaries; false when that could not be
  // written, or it is none.
  bool OwnWordRemove(std::wstring_view word);

 private:
  std::wstring DictionaryName() const;
  bool AppendRecord(std::wstring_view word);
  void RemoveRecord(const std::wstring& path, std::wstring_view word,
                    const std::vector<std::wstring>& own);

  FileStore& files_;
  Settings& settings_;
  std::wstring folder_;
  std::function<std::string_view()> packed_words_;
  OwnWords own_;
  Corrections corrections_;
  bool own_loaded_ = false;
  std::wstring loaded_;  // the name of the loaded dictionary; empty: none
  WordList list_;
  SpellOptions options_;  // as read when the last step began
  SpellRun run_;
  std::wstring note_;
  std::set<std::wstring> ignored_;                             // folded, for this check
  std::map<std::wstring, std::set<std::wstring>> ignored_in_;  // by note, until the program ends
};

}  // namespace varnel
