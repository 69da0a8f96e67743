// The system's dialogs for files and folders.
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace varnel {

struct FileRequest {
  std::wstring title = {};
  // Names and patterns in turn, all separated by "|": "Notes (*.txt)|*.txt|All files (*.*)|*.*".
  // A last name without its pattern shows all files.
  std::wstring filter = {};
  int filter_index = 1;      // the filter chosen at first, counted from 1
  std::wstring folder = {};  // shown at first; empty leaves it to the system
  std::wstring name = {};    // offered at first
};

// The dialog for choosing one existing file; empty when the user cancelled.
std::wstring BrowseForFile(HWND owner, const FileRequest& request);

struct FilesChosen {
  std::vector<std::wstring> paths;  // empty when the user cancelled
  bool too_many = false;            // more were chosen than have room; none are given then
};
// The same for any number of files. Their names, with their folder, have room in `units` UTF-16
// units together.
FilesChosen BrowseForFiles(HWND owner, const FileRequest& request, std::size_t units);

struct FileToSave {
  std::wstring path;     // as the user gave it: without an ending when none was typed
  int filter_index = 1;  // the filter that was chosen, counted from 1
};
// The dialog for naming a file to write, which asks before an existing one is taken. Nothing when
// the user cancelled.
std::optional<FileToSave> BrowseForFileToSave(HWND owner, const FileRequest& request);

// The system's folder picker, with `start` chosen at first where it is a folder. Empty when the
// user cancelled.
std::wstring BrowseForFolder(HWND owner, const std::wstring& title, const std::wstring& start = {});

}  // namespace varnel
