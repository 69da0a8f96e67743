// The dialog with the earlier versions of the note that is shown.
#pragma once

#include <string>

#include "frame/versions_dialog.h"
#include "widgets/notes/notes_link.h"

namespace varnel {

class NoteVersionsDialog : public VersionsDialog {  // frmNOTvr
 public:
  NoteVersionsDialog(Services& services, NotesLink& link);

 private:
  VersionedWidget* widget() const override { return link_.widget; }
  std::wstring WordsOf(const std::string& bytes) const override;

  NotesLink& link_;
};

}  // namespace varnel
