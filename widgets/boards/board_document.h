// What keeps the board that is drawn on.
#pragma once

#include <cstdint>
#include <string>

namespace varnel {

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
  // What went wrong last, in words for the user; empty when nothing did.
  const std::wstring& trouble() const { return trouble_; }
  void Tell(std::wstring trouble) { trouble_ = std::move(trouble); }

 protected:
  std::wstring trouble_;
};

}  // namespace varnel
