// The settings of the frame, each declared once for readers and writers.
#pragma once

#include "base/settings.h"

namespace varnel {

// Check box, "1" or "0": every widget stays above other windows.
inline constexpr Setting kOnTop{L"frmVRNpr\\Details", L"On-Top", L"0"};

// Check box: texts that would be hard to read are written in ink or with a halo.
inline constexpr Setting kMakeTextReadable{L"frmVRNpr\\Details", L"Make Text Readable", L"1"};

}  // namespace varnel
