// The earlier versions of the note that is shown: by date and size, with a preview, to be restored.
#pragma once

#include <vector>

#include "frame/services.h"
#include "widgets/notes/notes_link.h"
#include "win/windows/dialog.h"

namespace varnel {

class VersionsDialog : public Dialog {  // frmNOTvr
 public:
  VersionsDialog(Services& services, NotesLink& link)
      : Dialog(services.ui, L"frmNOTvr"), services_(services), link_(link) {}

 private:
  void OnOpen() override { Fill(); }
  void OnReopen() override { Fill(); }
  void OnCommand(int id, int code) override;
  void Fill();
  const DocumentVersion* Chosen() const;
  void Preview();

  Services& services_;
  NotesLink& link_;
  std::vector<DocumentVersion> versions_;
};

}  // namespace varnel
