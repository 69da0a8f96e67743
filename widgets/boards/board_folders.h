// Where the boards are kept.
#pragma once

#include "frame/data_folder.h"

namespace varnel {

inline constexpr FolderSetting kWhiteboardFolder{L"frmWBDpr\\Details",
                                                 L"Whiteboard Folder Location", L"\\wboard\\"};
inline constexpr FolderSetting kCalendarFolder{L"frmCALpr\\Details", L"Calendar Folder Location",
                                               L"\\calendar\\"};

}  // namespace varnel
