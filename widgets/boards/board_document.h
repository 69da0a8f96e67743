// What keeps the board that is drawn on.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/document_file.h"

namespace varnel {

inline constexpr std::wstring_view kVersionDamaged = L"That version is damaged";
inline constexpr std::wstring_view kRestored =
    L"An earlier version is back; the one before it is kept";

class BoardDocument {
 public:
  virtual ~BoardDocument() = default;

  // Saves what is unsaved. False when it cannot be saved; nothing is lost then.
  virtual bool Save() = 0;
  // Keeps a draft of what is unsaved when it is time to. `now` in milliseconds of a clock that is
  // never set.
  virtual void Tend(std::uint64_t now) = 0;
  // The same at once, whenever the last one was.
  virtual void KeepDraft(std::uint64_t now) = 0;
  // The former contents of what is shown, the newest first.
  virtual std::vector<DocumentVersion> Versions() const = 0;
  // Saves what is unsaved, then shows and saves a former content. False, with all as it was, when
  // that cannot be.
  virtual bool Restore(const DocumentVersion& version) = 0;
  // What went wrong last, in words for the user; empty when nothing did.
  const std::wstring& trouble() const { return trouble_; }
  void Tell(std::wstring trouble) { trouble_ = std::move(trouble); }

 protected:
  std::wstring trouble_;
};

}  // namespace varnel
