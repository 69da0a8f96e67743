// The dialog in which the user says where a family's documents are kept.
#pragma once

#include <string>
#include <string_view>

#include "frame/data_folder.h"
#include "frame/services.h"
#include "win/windows/dialog.h"

namespace varnel {

// The dialog's resource has the controls txtLOCATION, cmdBrowse, OK and Cancel.
class FolderDialog : public Dialog {
 public:
  struct Texts {
    const wchar_t* form_name;
    std::wstring_view browse_title;
    std::wstring_view subfolder;  // that every chosen folder ends in
  };

  FolderDialog(Services& services, const Texts& texts, const FolderSetting& setting)
      : Dialog(services.ui, texts.form_name),
        services_(services),
        texts_(texts),
        setting_(setting) {}

 protected:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  // Before the setting is changed; false keeps the dialog open with all as it was.
  virtual bool MayChange() { return true; }
  // The user pressed OK, and the folder is there; it may be the same as before.
  virtual void OnChosen() = 0;

 private:
  void Browse();
  void Choose();

  Services& services_;
  const Texts texts_;
  const FolderSetting& setting_;
  std::wstring shown_;  // the folder that the dialog was opened with
};

}  // namespace varnel
