// The clipboard: text, formatted text, pictures, files.
#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <vector>

#include "base/image.h"

namespace varnel {

// What is put on the clipboard together, each part for the programs that want it. Empty parts are
// left out.
struct ClipboardContent {
  std::wstring text = {};
  std::string rtf = {};
  Image picture = {};  // offered as a PNG file, and on white as a device-independent bitmap
};

// Puts the content in place of what the clipboard holds. False, and then some parts may be
// missing, when another program holds the clipboard or there is no memory.
bool CopyContent(HWND owner, const ClipboardContent& content);

// Puts `text` on the clipboard. False when another program holds it.
bool CopyText(HWND owner, const std::wstring& text);

// The text on the clipboard, at most `most` UTF-16 units of it; empty when it holds none.
std::wstring PastedText(HWND owner, std::size_t most);

// The formatted text on the clipboard as it was put there, not looked into; empty when there is
// none, or more than `most` bytes.
std::string PastedRtf(HWND owner, std::size_t most);

// The picture on the clipboard: a PNG file, a bitmap, or a metafile painted on white. Empty when
// there is none that can be read. The thread has to be in a ComApartment.
Image PastedPicture(HWND owner);

// Paths of the files that were copied; empty when there are none.
std::vector<std::wstring> PastedFiles(HWND owner);

// What the clipboard offers at the moment; asks nobody for the data.
struct ClipboardOffer {
  bool text = false;
  bool rtf = false;
  bool picture = false;
  bool files = false;
};
ClipboardOffer OfferOfClipboard();

// The paths of files dropped on a window (WM_DROPFILES), whose record stays the caller's.
std::vector<std::wstring> DroppedPaths(HDROP drop);

// The number of the clipboard format for formatted text.
UINT RtfFormat();

}  // namespace varnel
