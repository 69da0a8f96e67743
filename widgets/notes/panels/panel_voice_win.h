// How a panel of the notes speaks.
#pragma once

#include "widgets/notes/editor/edited_note.h"
#include "widgets/notes/panels/note_panel_win.h"
#include "win/windows/message_box.h"

namespace varnel {

class PanelVoice : public NoteVoice {
 public:
  // `host` outlives it.
  explicit PanelVoice(NotePanelHost& host) : host_(host) {}

  void Notice(const std::wstring& text) override { host_.Tell(text); }
  void Inform(const NotesMessage& message) override {
    Ask(host_.PanelParent(), {message.title, message.text});
  }

 private:
  NotePanelHost& host_;
};

}  // namespace varnel
