// The clipboard as a program beside the one under test fills and reads it.
#pragma once

#include <windows.h>

#include <string>

#include "win/system/clipboard.h"

namespace varnel::rig {

class Clipboard {
 public:
  Clipboard();
  Clipboard(const Clipboard&) = delete;
  Clipboard& operator=(const Clipboard&) = delete;
  ~Clipboard();

  // False when another program holds it.
  bool Put(const ClipboardContent& content) const { return CopyContent(owner_, content); }

  // What it holds of each kind; empty when there is none. Pictures need a ComApartment.
  std::wstring Text() const;
  std::string Rtf() const;
  Image Picture() const { return PastedPicture(owner_); }

 private:
  HWND owner_;
};

}  // namespace varnel::rig
