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
  // Which folders get the family's subfolder.
  enum class Subfolder { kOfAnyChosen, kOfPickedOnly };

  struct Texts {
    const wchar_t* form_name;
    std::wstring_view browse_title;
    std::wstring_view subfolder;
    Subfolder append = Subfolder::kOfAnyChosen;  // what is typed is taken as it is otherwise
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
  // The user pressed OK, and the folder is there: what else the dialog holds is to be stored.
  virtual void Store() {}
  // All is stored and the dialog is closed. `changed` is false for the same folder as before.
  virtual void OnChosen(bool changed) = 0;

  Services& services() const { return services_; }

 private:
  void Browse();
  void Choose();

  Services& services_;
  const Texts texts_;
  const FolderSetting& setting_;
  std::wstring shown_;  // the folder that the dialog was opened with
};

}  // namespace varnel
