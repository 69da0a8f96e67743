// What the dialogs of the calendar know of it.
#pragma once

#include <string>

#include "frame/family_service.h"
#include "frame/services.h"
#include "frame/versioned_widget.h"
#include "widgets/boards/picture_pack.h"

namespace varnel {

class CalendarWidget : public VersionedWidget {
 public:
  // Floats a text over the month, in letters of so many points, wrapped to the width of a day or
  // not at all.
  virtual void InsertText(const std::wstring& text, int points, bool wrap) = 0;
  // Floats an icon; the pictures outlive the program's windows.
  virtual void InsertIcon(const OfferedPicture& picture) = 0;
  // Saves what is unsaved before the months' folder is changed; false when that fails.
  virtual bool SaveMonth() = 0;
  // The setting that names the folder has changed.
  virtual void FolderChanged() = 0;
};

// The widget, while it is open.
struct CalendarLink : FamilyService {
  explicit CalendarLink(Services&) {}
  CalendarWidget* widget = nullptr;
};

}  // namespace varnel
