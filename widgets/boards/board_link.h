// What the dialogs of a widget with boards know of it.
#pragma once

#include <string>

#include "frame/family_service.h"
#include "frame/services.h"
#include "frame/versioned_widget.h"

namespace varnel {

class BoardWidget : public VersionedWidget {
 public:
  // Floats a text over the board, in letters of so many points.
  virtual void InsertText(const std::wstring& text, int points) = 0;
  // Saves what is unsaved before the boards' folder is changed; false when that fails.
  virtual bool SaveBoards() = 0;
  // The setting that names the folder has changed.
  virtual void FolderChanged() = 0;
};

// The widget, while it is open.
struct BoardLink : FamilyService {
  explicit BoardLink(Services&) {}
  BoardWidget* widget = nullptr;
};

}  // namespace varnel
