// Files as a scene prepares and judges them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnel::rig {

// The path held by the environment variable `name`, in the platform's form even where the build
// wrote it with "/"; empty when there is no such variable.
std::wstring PathFromEnvironment(const wchar_t* name);

bool FileExists(const std::wstring& path);
bool FolderExists(const std::wstring& path);

// Paths below `folder`, relative to it, of every file at any depth, sorted; empty when there is no
// such folder.
std::vector<std::wstring> FilesBelow(const std::wstring& folder);
// Names of the folders directly in `folder`, sorted.
std::vector<std::wstring> FoldersIn(const std::wstring& folder);

// The whole content, or nothing when the file cannot be read.
std::optional<std::string> FileBytes(const std::wstring& path);

// Creates or overwrites the file, with the folders above it. False when that fails.
bool WriteBytes(const std::wstring& path, std::string_view bytes);

// Removes a file, or a folder with everything in it. False when something of it is still there.
bool RemoveAll(const std::wstring& path);

}  // namespace varnel::rig
