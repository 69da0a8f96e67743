// The presets that the program makes for itself: one for every base colour in every style.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/file_store.h"
#include "theme/colour.h"

namespace varnel {

// The folders inside "themes". All but "Custom", which is for the user's own, start with presets.
inline constexpr std::array<std::wstring_view, 11> kStyleFolders = {
    L"Bright", L"Custom", L"Dark", L"Flat",  L"Frosted", L"Glass",
    L"Light",  L"Neon",   L"Pale", L"Slate", L"Soft"};

// The path of a style's folder; neither path ends in a separator, `program_folder` may.
std::wstring StyleFolderPath(std::wstring_view program_folder, std::wstring_view style);

enum class SamePresets { kReplace, kLeave };

// Writes a style's fourteen presets into `folder`; one that cannot be written is left out. False
// when one is. Does nothing for a style that has no presets.
bool GeneratePresets(FileStore& files, const std::wstring& folder, std::wstring_view style,
                     const SystemColours& system, SamePresets same = SamePresets::kReplace);

// Creates every style folder that is missing and fills each new one. A folder that is there is left
// as it is, even an empty one: deleted presets do not come back. Where filling a folder was cut
// short, by a full disk or the program's end, the next start writes the presets that are not there;
// until then a file beside the folder, with its name and ".unfinished", says so. False when
// something is still missing.
bool EnsureThemeFolders(FileStore& files, std::wstring_view program_folder,
                        const SystemColours& system);

}  // namespace varnel
