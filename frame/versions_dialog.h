// The dialog with the earlier versions of the document that a widget shows: by date and size, with
// a preview, to be restored.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/document_file.h"
#include "base/image.h"
#include "frame/services.h"
#include "frame/versioned_widget.h"
#include "win/windows/dialog.h"

namespace varnel {

// The dialog's resource has the controls lstVERSIONS, txtVERSION for words, cmdRESTORE, IDCANCEL
// and, where there are pictures to be seen, the owner-drawn imgVERSION.
class VersionsDialog : public Dialog {
 public:
  struct Traits {
    const wchar_t* form_name;
    std::wstring_view none;  // what stands there when the document has no earlier versions
    std::size_t most_bytes;  // of one version
  };

 protected:
  VersionsDialog(Services& services, const Traits& traits)
      : Dialog(services.ui, traits.form_name), services_(services), traits_(traits) {}

  // Null while it is not open.
  virtual VersionedWidget* widget() const = 0;
  // What is seen of a content: words, or else an opaque picture.
  virtual std::wstring WordsOf(const std::string&) const { return {}; }
  virtual Image PictureOf(const std::string&) const { return {}; }

 private:
  void OnOpen() override { Fill(); }
  void OnReopen() override { Fill(); }
  void OnCommand(int id, int code) override;
  bool OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  std::vector<DocumentVersion> Present() const;
  bool IsUpToDate();
  void Fill();
  const DocumentVersion* Chosen() const;
  void Preview();
  void Show(const std::wstring& words, Image picture);

  Services& services_;
  const Traits traits_;
  std::vector<DocumentVersion> versions_;
  Image picture_;  // that is shown
};

}  // namespace varnel
