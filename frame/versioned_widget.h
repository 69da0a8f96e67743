// A widget whose document has earlier versions.
#pragma once

#include <vector>

#include "base/document_file.h"

namespace varnel {

class VersionedWidget {
 public:
  virtual ~VersionedWidget() = default;
  // The former contents of the document that is shown, the newest first.
  virtual std::vector<DocumentVersion> Versions() const = 0;
  // Puts one in the document's place; what that was becomes a version too.
  virtual void RestoreVersion(const DocumentVersion& version) = 0;
};

}  // namespace varnel
