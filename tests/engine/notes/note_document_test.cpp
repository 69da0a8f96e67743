#include "widgets/notes/note_document.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

#include "tests/support/cases.h"
#include "widgets/notes/text/note_spacing.h"

namespace varnel {
namespace {

constexpr LocalTime kMorning{2010, 10, 7, 4, 9, 5, 3};
constexpr LocalTime kAfternoon{2010, 10, 7, 4, 14, 30, 0};

FileExists Only(const std::set<std::wstring>& files) {
  return [files](const std::wstring& path) { return files.contains(path); };
}

TEST(NoteDocument, GeneratedNames) {
  const FileExists taken = Only({L"n\\101007953_Tavrin 3.RTF", L"n\\101007953_Tavrin 3 (2).RTF"});
  const test::Cases<LocalTime, const wchar_t*, NoteType, const wchar_t*> cases = {
      {kMorning, L"Tavrin 1", NoteType::kRtf, L"n\\101007953_Tavrin 1.RTF"},
      {kAfternoon, L"Notes 1", NoteType::kTxt, L"n\\10100714300_Notes 1.TXT"},
      {kMorning, L"C:\\x.y\\memo.text", NoteType::kTxt, L"n\\101007953_memo.TXT"},
      {kMorning, L"Tavrin 3", NoteType::kRtf, L"n\\101007953_Tavrin 3 (3).RTF"},
  };
  for (const auto& [now, current, type, path] : cases) {
    EXPECT_EQ(GeneratedNotePath(L"n\\", now, current, type, taken), path);
  }
}

TEST(NoteDocument, TitlesTypesAndListItems) {
  const test::Cases<const wchar_t*, const wchar_t*, NoteType> cases = {
      {L"C:\\a\\memo.rtf", L"memo", NoteType::kRtf}, {L"memo.RtF", L"memo", NoteType::kRtf},
      {L"C:\\a.rtf\\memo", L"memo", NoteType::kTxt}, {L"a.b.text", L"a.b", NoteType::kTxt},
      {L"C:\\.rtf", L".rtf", NoteType::kTxt},        {L"", L"", NoteType::kTxt}};
  for (const auto& [path, title, type] : cases) {
    EXPECT_EQ(NoteTitle(path), title) << path;
    EXPECT_EQ(NoteTypeOf(path), type) << path;
  }
  const NoteListItem item = NoteListItemOf(3, L"n\\", L"a.rTf");
  EXPECT_EQ(item.key + L"|" + item.text + L"|" + item.path, L"3M|a|n\\a.rTf");
  EXPECT_EQ(item.icon, 1);
  EXPECT_EQ(NoteListItemOf(1, L"n\\", L"a.txt").icon, 2);
  EXPECT_EQ(SelectionAfterDelete(0, 3), 0);
  EXPECT_EQ(SelectionAfterDelete(3, 3), 2);
  EXPECT_EQ(SelectionAfterDelete(0, 0), std::nullopt);
}

TEST(NoteDocument, ExportAndRename) {
  const test::Cases<const wchar_t*, int, const wchar_t*, NoteType> exports = {
      {L"C:\\memo", 1, L"C:\\memo.rtf", NoteType::kRtf},
      {L"C:\\a.b\\memo", 2, L"C:\\a.b\\memo.txt", NoteType::kTxt},
      {L"C:\\memo.rtf", 2, L"C:\\memo.rtf", NoteType::kTxt},
      {L"C:\\memo.txt", 1, L"C:\\memo.txt", NoteType::kRtf}};
  for (const auto& [chosen, filter, path, type] : exports) {
    EXPECT_EQ(NoteExportOf(chosen, filter).path, path);
    EXPECT_EQ(NoteExportOf(chosen, filter).type, type) << chosen;
  }
  const FileExists files = Only({L"n\\a.txt", L"n\\b.rtf", L"n\\A.rtf"});
  const test::Cases<const wchar_t*, RenameStep, const wchar_t*> renames = {
      {L"a", RenameStep::kNothing, L""},
      {L"c", RenameStep::kRename, L"n\\c.rtf"},
      {L"b", RenameStep::kAsk, L"n\\b.rtf"},
      {L"x/y", RenameStep::kRefuse, L""},
      {L" ", RenameStep::kRefuse, L""}};
  for (const auto& [label, step, path] : renames) {
    const NoteRename rename = NoteRenameOf(L"n\\a.txt", L"n\\", label, NoteType::kRtf, files);
    EXPECT_EQ(rename.step, step) << label;
    EXPECT_EQ(rename.path, path) << label;
  }
  EXPECT_EQ(NoteRenameOf(L"n\\a.rtf", L"n\\", L"A", NoteType::kRtf, files).step,
            RenameStep::kRename);
}

TEST(NoteDocument, StatesOfANote) {
  NoteDocument note;
  EXPECT_TRUE(note.StartNew(NoteType::kRtf) && note.StartNew(NoteType::kTxt));
  EXPECT_EQ(note.path(), L"Notes 2");
  note.Changed(true);
  EXPECT_FALSE(note.modified());
  note.Changed(false);
  EXPECT_TRUE(note.modified());
  const std::wstring path = GeneratedNotePath(L"n\\", kMorning, note.path(), note.type(), Only({}));
  EXPECT_EQ(path, L"n\\101007953_Notes 2.TXT");
  note.Saved(path);
  EXPECT_FALSE(note.modified());
  EXPECT_EQ(note.title(), L"101007953_Notes 2");
  note.Exported({L"x\\copy.rtf", NoteType::kRtf}, L"x\\copy.rtf");
  EXPECT_TRUE(note.path() == path && note.type() == NoteType::kTxt);
  note.Exported({L"x\\new.rtf", NoteType::kRtf}, L"n\\1.RTF");
  EXPECT_TRUE(note.path() == L"n\\1.RTF" && note.type() == NoteType::kRtf);
  note.Renamed(L"n\\other.RTF", L"n\\2.RTF");
  EXPECT_EQ(note.path(), L"n\\1.RTF");
  note.Renamed(L"N\\1.rtf", L"n\\2.RTF");
  EXPECT_EQ(note.path(), L"n\\2.RTF");
  note.Changed(false);
  note.DropChanges();
  EXPECT_FALSE(note.modified());

  NoteDocument last(std::numeric_limits<std::int32_t>::max());
  last.Opened(L"n\\a.rtf", NoteType::kRtf);
  EXPECT_FALSE(last.StartNew(NoteType::kRtf));
  EXPECT_EQ(last.path(), L"n\\a.rtf");
}

TEST(NoteSpacing, WhatIsSentComesBackAsThePanelShowsIt) {
  const wchar_t* const shown[] = {L"", L"1.1", L"1.2", L"1.5", L"", L"2.6"};
  const std::size_t named[] = {0, 5, 5, 5, 4, 5};
  const std::int32_t sent[] = {20, 23, 25, 30, 40, 53};
  for (std::size_t i = 0; i < kNamedSpacings.size(); ++i) {
    const NamedSpacing& spacing = kNamedSpacings[i];
    const double line = spacing.line == 0 ? 2.66 : spacing.line;
    const ParagraphSpacing record = TextLineSpacing(spacing.rule, line, 2.5, 0.13);
    EXPECT_EQ(record, (ParagraphSpacing{spacing.rule, sent[i], 125, 7}));
    const SpacingShown back = ShownSpacing(record);
    EXPECT_EQ(back.named, named[i]) << i;
    EXPECT_EQ(back.lines.value_or(L""), shown[i]) << i;
    EXPECT_EQ(back.before + L"|" + back.after, L"2.5|0.1");
  }
  EXPECT_EQ(ShownSpacing({LineRule::kOneAndHalf, 0, 0, 0}).named, 3u);
  EXPECT_EQ(TextLineSpacing(LineRule::kMultiple, -0.125, 0.01, 0.03).line_spacing, -3);
  EXPECT_EQ(TextLineSpacing(LineRule::kMultiple, 0.125, 0.01, 0.03),
            (ParagraphSpacing{LineRule::kMultiple, 3, 1, 2}));
}

TEST(NoteSpacing, IndentsScriptsAndPictures) {
  const test::Cases<int, int, int> indents = {{0, 720, 0},        {500, 1220, 0},
                                              {720, 1440, 0},     {721, 1441, 1},
                                              {5999, 6719, 5279}, {6000, 6000, 5280}};
  for (const auto& [indent, more, less] : indents) {
    EXPECT_EQ(TextIndentIncr(indent, 8000), more);
    EXPECT_EQ(TextIndentDecr(indent), less);
  }
  for (int option = 0; option < 3; ++option) EXPECT_EQ(ScriptOption(ScriptOffset(option)), option);
  EXPECT_EQ(ScriptOffset(2), -27);
  EXPECT_TRUE(IsPictureFile(L"c:\\a.b\\c.pNg"));
  for (const wchar_t* path : {L"png", L"a.jpeg", L"a.png.txt", L"c:\\a.png\\b"})
    EXPECT_FALSE(IsPictureFile(path));
}

TEST(NoteStatus, TextsToTheLetter) {
  const test::Cases<TextCounts, std::optional<TextCounts>, const wchar_t*> cases = {
      {{1, 1}, {}, L"1 word (1 char). "},
      {{0, 1}, {}, L"0 word (1 char). "},
      {{1, 5}, {}, L"1 word (5 chars). "},
      {{0, 0}, {}, L"0 words (0 chars). "},
      {{3, 4}, TextCounts{0, 0}, L"3 words (4 chars). "},
      {{3, 4}, TextCounts{1, 1}, L"3 words (4 chars). 1 sel word (1 sel char). "},
      {{3, 4}, TextCounts{1, 2}, L"3 words (4 chars). 1 sel word (2 sel chars). "},
      {{3, 4}, TextCounts{0, 1}, L"3 words (4 chars). 0 sel words (1 sel chars). "},
  };
  for (const auto& [text, selected, status] : cases) EXPECT_EQ(CountStatus(text, selected), status);
  EXPECT_EQ(LineStatus(1, 1), L"1 of 1 line. ");
  EXPECT_EQ(LineStatus(3, 5), L"3 of 5 lines. ");
}

}  // namespace
}  // namespace varnel
