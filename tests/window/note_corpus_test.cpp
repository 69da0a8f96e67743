// Files of other makers' programs (tests/corpus/rtf) in the editor itself: opened, edited, saved.
#include "tests/support/memory_files.h"
#include "tests/support/rtf_corpus.h"
#include "tests/window/window_aid.h"
#include "widgets/notes/editor/note_editor_win.h"

namespace varnel {
namespace {

class NoteCorpus : public test::Hosted {
 protected:
  NoteCorpus() {
    host_.on_message = [this](UINT message, WPARAM wparam, LPARAM lparam) {
      if (message == WM_NOTIFY) note_.edit().OnNotify(*reinterpret_cast<NMHDR*>(lparam));
      if (message == WM_COMMAND) note_.edit().OnCommand(HIWORD(wparam));
      return message == WM_NOTIFY || message == WM_COMMAND;
    };
    EXPECT_TRUE(note_.Load(host_.handle(), 1, {.half_points = 24, .face = L"Tahoma"}));
    ::MoveWindow(note_.handle(), 0, 0, 640, 440, TRUE);
  }

  test::MemoryFiles files_;
  NoteEditor note_{files_,
                   {.on_edit = [] {},
                    .on_select = [] {},
                    .on_notice = [](std::wstring) {},
                    .on_documents = [](std::vector<std::wstring>) {},
                    .on_address = [](const std::wstring&) {},
                    .on_zoom = [](int) {}}};
};

TEST_F(NoteCorpus, IsSavedAfterAnEditWithoutLossOfTextPicturesAndFormats) {
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

}  // namespace
}  // namespace varnel
