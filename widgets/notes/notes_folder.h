// Where the notes are kept.
#pragma once

#include "frame/data_folder.h"

namespace varnel {

inline constexpr FolderSetting kNotesFolder{L"frmNOTpr\\Details", L"Notes Folder Location",
                                            L"\\tavrin\\"};

}  // namespace varnel
