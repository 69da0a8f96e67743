// The properties of the notes: font of a new note, its type, and where the notes are kept.
#pragma once

#include "frame/services.h"
#include "theme/colour.h"
#include "widgets/notes/notes_link.h"
#include "win/windows/colour_picker.h"
#include "win/windows/dialog.h"

namespace varnel {

class NotesDialog : public Dialog {  // frmNOTpr
 public:
  NotesDialog(Services& services, NotesLink& link)
      : Dialog(services.ui, L"frmNOTpr"), services_(services), link_(link) {}

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  bool OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void Browse();
  void PickColour();
  // False when the folder cannot be made; the dialog stays then.
  bool Store();
  bool StoreFolder();

  Services& services_;
  NotesLink& link_;
  Colour colour_ = kBlack;
  ColourPicker picker_;
};

}  // namespace varnel
