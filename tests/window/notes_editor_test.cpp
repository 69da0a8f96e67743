// The editor of notes itself: files of other makers' programs (tests/corpus/rtf), and thousands of
// steps beside a plain text.
#include <shlobj.h>

#include <random>

#include "tests/support/memory_files.h"
#include "tests/support/rtf_corpus.h"
#include "tests/window/window_aid.h"
#include "widgets/notes/editor/note_editor_win.h"

namespace varnel {
namespace {

class NotesEditor : public test::Hosted {
 protected:
  NotesEditor() {
    host_.on_message = [this](UINT message, WPARAM wparam, LPARAM lparam) {
      if (message == WM_NOTIFY) note_.edit().OnNotify(*reinterpret_cast<NMHDR*>(lparam));
      if (message == WM_COMMAND) note_.edit().OnCommand(HIWORD(wparam));
      return message == WM_NOTIFY || message == WM_COMMAND;
    };
    EXPECT_TRUE(note_.Load(host_.handle(), 1, {.half_points = 24, .face = L"Tahoma"}));
    ::MoveWindow(note_.handle(), 0, 0, 640, 440, TRUE);
  }

  std::vector<std::wstring> opened_;
  test::MemoryFiles files_;
  NoteEditor note_{files_,
                   {.on_edit = [] {},
                    .on_select = [] {},
                    .on_notice = [](std::wstring) {},
                    .on_documents = [this](std::vector<std::wstring> paths) { opened_ = paths; },
                    .on_address = [](const std::wstring&) {},
                    .on_zoom = [](int) {}}};
};

TEST_F(NotesEditor, ACorpusIsSavedAfterAnEditWithoutLossOfTextPicturesAndFormats) {
  for (const test::RtfSample& sample : test::RtfSamples()) {
    SCOPED_TRACE(sample.name);
    if (sample.name.starts_with("pages.")) continue;  // this control has no breaks of pages
    const auto shown = note_.Show(NoteType::kRtf, test::LoadCorpus(sample.name));
    EXPECT_EQ(shown.type, NoteType::kRtf);
    EXPECT_EQ(shown.notice, L"");
    const std::wstring text = note_.edit().Units({0, note_.edit().Length()});
    const auto at = static_cast<int>(text.find(sample.paragraphs[0][0])) + 1;
    note_.edit().Select({at, at});
    note_.edit().Replace(L"ne\x0142w");
    const auto saved = note_.Bytes(NoteType::kRtf);
    ASSERT_TRUE(saved);
    test::ExpectAsClaimed(ReadRtf(*saved).document, test::Edited(sample, L"ne\x0142w"));
  }
}

// A text with every picture as one unit, as the editor counts.
class PlainModel {
 public:
  void Replace(RichRange range, std::wstring_view with) {
    text.replace(static_cast<std::size_t>(range.from),
                 static_cast<std::size_t>(range.to - range.from), with);
  }
  std::wstring text;
};

class NotesSteps : public NotesEditor {
 protected:
  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  int Length() const { return static_cast<int>(model_.text.size()); }

  std::wstring Words() {
    static constexpr const wchar_t* kWords[] = {
        L"a",  L"word ", L"\x0142\x0119", L"\xD83D\xDE00", L" ",      L"one\rtwo",
        L"\r", L"\t",    L"{\\}",         L"\x4E2D",       L"\x03C9", L"-"};
    std::wstring words;
    for (int i = Below(4); i >= 0; --i) words += kWords[Below(std::size(kWords))];
    return words;
  }
  // Half a character is never selected by a user.
  int Place() {
    int at = Below(Length() + 1);
    const auto low = [&](int place) {
      return place < Length() && (model_.text[static_cast<std::size_t>(place)] & 0xFC00) == 0xDC00;
    };
    return low(at) ? at - 1 : at;
  }
  RichRange Select() {
    const int from = Place();
    int to = Below(3) == 0 ? from : Place();
    to = std::min(std::max(from, to), from + 40);
    if (to < Length() && (model_.text[static_cast<std::size_t>(to)] & 0xFC00) == 0xDC00) ++to;
    note_.edit().Select({from, to});
    return {from, to};
  }

  void Step() {
    const RichRange range = Select();
    switch (Below(9)) {
      case 0:
      case 1: {
        const std::wstring words = Words();
        note_.InsertText(words);
        return model_.Replace(range, words);
      }
      case 2:
        note_.edit().Replace(L"");
        return model_.Replace(range, L"");
      case 3: {
        ASSERT_TRUE(note_.InsertRtf("{\\rtf1 b\\b old\\par {\\i x}}"));
        return model_.Replace(range, L"bold\rx");
      }
      case 4:
        if (note_.edit().Pictures().size() < 5) {
          ASSERT_TRUE(note_.InsertPicture(PictureOfImage(Image(3, 2, 0xFF102030))));
          model_.Replace(range, std::wstring(1, kObject));
        }
        return;
      case 5:
        return note_.edit().SetFormat({.bold = Below(2) == 0, .half_points = 20 + Below(20)});
      case 6:
        return note_.edit().SetParagraph(
            {.alignment = static_cast<RichAlignment>(1 + Below(3)),
             .start_indent = Below(3) * 360,
             .offset = Below(3) * 180,
             .numbering = Below(2) ? RichNumbering::kBullets : RichNumbering::kNone});
      case 7:
        if (note_.edit().Length() > 1500) {
          note_.edit().Select({0, 800});
          note_.edit().Replace(L"");
          model_.Replace({0, 800}, L"");
        }
        return;
      default:
        return SaveAndOpen();
    }
  }
  void SaveAndOpen() {
    if (Below(4)) return;
    const auto saved = note_.Bytes(NoteType::kRtf);
    ASSERT_TRUE(saved);
    const RtfReading read = ReadRtf(*saved);
    ASSERT_EQ(read.fault, RtfFault::kNone);
    ASSERT_EQ(read.document.text, model_.text);
    if (Below(2)) note_.Show(NoteType::kRtf, *saved);
  }
  std::wstring Shown() const {
    std::wstring text = note_.edit().Units({0, note_.edit().Length()});
    for (const RichPicture& picture : note_.edit().Pictures()) {
      text.at(static_cast<std::size_t>(picture.position)) = kObject;
    }
    return text;
  }

  std::mt19937 random_{11};
  PlainModel model_;
};

TEST_F(NotesSteps, TwoThousandAgreeWithAPlainText) {
  note_.StartEmpty(NoteType::kRtf);
  for (int i = 0; i < 2000; ++i) {
    ASSERT_NO_FATAL_FAILURE(Step()) << i;
    ASSERT_EQ(Shown(), model_.text) << i;
  }
}

TEST_F(NotesEditor, DroppedPicturesAreShownAndDocumentsOpened) {
  const std::string bmp(
      "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\2\0\0\0\1\0\0\0\1\0\x18\0\0\0\0\0\x08\0\0"
      "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x01\x02\x03\xFD\xFE\xFF\0\0",
      62);
  ASSERT_TRUE(files_.Replace(L"C:\\a.bmp", bmp));
  note_.StartEmpty(NoteType::kRtf);
  const std::wstring paths = std::wstring(L"C:\\a.bmp\0C:\\b.rtf\0C:\\c.txt\0", 27) + L'\0';
  const SIZE_T size = sizeof(DROPFILES) + paths.size() * sizeof(wchar_t);
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size);
  auto* drop = static_cast<DROPFILES*>(::GlobalLock(memory));
  drop->pFiles = sizeof(DROPFILES);
  drop->fWide = TRUE;
  std::copy(paths.begin(), paths.end(), reinterpret_cast<wchar_t*>(drop + 1));
  ::GlobalUnlock(memory);
  ::SendMessageW(note_.handle(), WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
  EXPECT_EQ(note_.edit().Pictures().size(), 1u);
  EXPECT_EQ(opened_, (std::vector<std::wstring>{L"C:\\b.rtf", L"C:\\c.txt"}));
}

}  // namespace
}  // namespace varnel
