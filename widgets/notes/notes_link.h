// What the notes' dialogs know of the widget, and what outlives its window.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "base/geometry.h"
#include "frame/family_service.h"
#include "frame/services.h"
#include "frame/versioned_widget.h"

namespace varnel {

class NotesWidget : public VersionedWidget {
 public:
  // Takes the font, size and colour of the settings.
  virtual void NotePropsRefresh() = 0;
  // The setting that names the folder has changed.
  virtual void FolderChanged() = 0;
};

// Where the user was in a note.
struct NotePlace {
  int from = 0;
  int to = 0;
  Point scroll;
};

struct NotesLink : FamilyService {
  explicit NotesLink(Services&) {}
  NotesWidget* widget = nullptr;             // while it is open
  std::int32_t counter = 0;                  // of notes started since the program was
  std::map<std::wstring, NotePlace> places;  // by path
};

}  // namespace varnel
