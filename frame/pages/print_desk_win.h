// Where widgets put what the user wants to print, and where the preview finds it.
#pragma once

#include <memory>
#include <utility>

#include "frame/family_service.h"
#include "frame/pages/paged_document_win.h"
#include "frame/services.h"
#include "win/print/printers.h"

namespace varnel {

class PrintDesk : public FamilyService {
 public:
  explicit PrintDesk(Services& services) : services_(services) {}

  // Opens the preview of a document, or shows it in the one that is open.
  void Show(std::shared_ptr<PagedDocument> document) {
    document_ = std::move(document);
    services_.program.OpenDialog(L"frmNOTpp");
  }
  const std::shared_ptr<PagedDocument>& document() const { return document_; }
  // The preview is closed.
  void Clear() { document_.reset(); }

  // The printer that was chosen last, with its settings, for as long as the program runs.
  PrinterChoice printer;

 private:
  Services& services_;
  std::shared_ptr<PagedDocument> document_;
};

}  // namespace varnel
