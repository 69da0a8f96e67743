// The properties of the notes: font of a new note, its type, and where the notes are kept.
#pragma once

#include "frame/folder_dialog.h"
#include "theme/colour.h"
#include "widgets/notes/notes_folder.h"
#include "widgets/notes/notes_link.h"
#include "win/windows/colour_picker.h"

namespace varnel {

class NotesDialog : public FolderDialog {  // frmNOTpr
 public:
  NotesDialog(Services& services, NotesLink& link)
      : FolderDialog(
            services,
            {L"frmNOTpr", L"Choose a new Notes location", L"tavrin", Subfolder::kOfPickedOnly},
            kNotesFolder),
        link_(link) {}

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  bool OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void Store() override;
  void OnChosen(bool changed) override;
  void PickColour();

  NotesLink& link_;
  Colour colour_ = kBlack;
  ColourPicker picker_;
};

}  // namespace varnel
