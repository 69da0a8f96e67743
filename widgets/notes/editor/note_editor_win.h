// The editor of a note: the system's control, what is known beside it, and all ways in and out.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "widgets/notes/editor/note_pictures_win.h"
#include "widgets/notes/note_desk.h"
#include "widgets/notes/rtf/rtf_mend.h"
#include "widgets/notes/rtf/rtf_pictures.h"
#include "widgets/notes/text/note_text.h"
#include "widgets/notes/text/text_file.h"
#include "widgets/notes/text/text_words.h"
#include "win/rich/rich_edit.h"

namespace varnel {

// What the reader of formatted text needs to know of this system.
RtfOrigin SystemRtfOrigin();

// The system's own encoding of plain text.
const SystemEncoding& SystemTextEncoding();

class NoteEditor : public NoteContent {
 public:
  struct Events {
    std::function<void()> on_edit;                // the user changed the text or a format
    std::function<void()> on_select;              // the caret moved
    std::function<void(std::wstring)> on_notice;  // what did not work
    std::function<void(std::vector<std::wstring> paths)> on_documents;  // dropped or pasted
    std::function<void(const std::wstring& address)> on_address;        // the user follows a link
    std::function<void(int notches)> on_zoom;
  };

  // For an editor that only shows.
  static Events Silent();

  NoteEditor(const FileStore& files, Events events);

  bool Load(HWND parent, int id, const CharacterFormat& base);
  RichEdit& edit() { return edit_; }
  const RichEdit& edit() const { return edit_; }
  HWND handle() const { return edit_.handle(); }
  bool rich() const { return type_ == NoteType::kRtf; }
  // What is written without a format of its own. Of a whole text only the colour is changed.
  void SetBase(const CharacterFormat& base);

  // The text as it was when it was last looked at: at once in notes up to kSmallText units.
  static constexpr int kSmallText = 100'000;
  const NoteText& text() const { return text_; }
  void TakeText();
  bool text_is_old() const { return text_is_old_; }

  void StartEmpty(NoteType type) override;
  Shown Show(NoteType type, const std::string& bytes) override;
  // Shows another state of the note: formatted text, or units of a plain one. `go_on` is asked only
  // where that takes long; when it stops it, false is given and nothing has changed.
  bool ShowOther(const std::string& rtf, const RichEdit::GoOn& go_on);
  bool ShowUnits(const std::wstring& units, const RichEdit::GoOn& go_on);
  // What of the text is not shown, in ascending order.
  std::vector<TextRange> Hidden() const;
  std::optional<std::string> Bytes(NoteType type) override;
  // The same for what is selected alone.
  std::optional<std::string> SelectedRtf();

  // Puts in a file's content, or a picture, in place of what is selected. False, with a notice,
  // where that cannot be.
  bool InsertRtf(std::string_view rtf);
  bool InsertText(const std::wstring& text);
  // Formatted text, or plain text in whatever encoding.
  void InsertFile(const std::string& bytes);
  bool InsertPicture(std::optional<RtfPicture> picture);
  void Paste();
  void PastePlain();

  // While it lives, what changes the text is the program.
  class Loading {
   public:
    explicit Loading(NoteEditor& editor) : editor_(editor), quietly_(editor.edit_) {
      ++editor_.loading_;
    }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;
    ~Loading() { --editor_.loading_; }

   private:
    NoteEditor& editor_;
    RichEdit::Quietly quietly_;
  };
  bool loading() const { return loading_ > 0; }

 private:
  RichEdit::Events ControlEvents();
  void OnChange();
  void OnLink(RichRange range, UINT message);
  void OnFiles(const std::vector<std::wstring>& paths, int position);
  bool OnCopy();
  std::wstring PlainText() const;
  std::optional<std::string> Whole(std::string rtf, std::span<const RichPicture> pictures) const;
  void ShowText(const std::wstring& text);
  static bool HidesText(const RtfDocument& document);
  bool ShowSafe(const SafeRtf& safe, const RichEdit::GoOn& go_on);
  bool PutIn(const std::function<void(const RichEdit::GoOn&)>& put, const RichEdit::GoOn& go_on);
  // What the control did not read of a text that stands from `begin` on, and its pictures.
  void FinishRtf(const SafeRtf& safe, int begin);
  void SetLostFormats(const RtfDocument& document, int begin);
  void PlacePictures(const SafeRtf& safe, int begin);
  int PageWidth() const;

  const FileStore& files_;
  Events events_;
  RichEdit edit_;
  CharacterFormat base_;
  NoteType type_ = NoteType::kRtf;
  NoteText text_;
  bool text_is_old_ = false;
  NotePictures pictures_;
  TextForm form_;       // of a plain text
  bool hides_ = false;  // some of the text may be hidden
  int loading_ = 0;
};

}  // namespace varnel
