// The manager's commands.
#pragma once

#include "frame/command_table.h"

namespace varnel {

inline constexpr CommandRow kManagerCommands[] = {
    {L"mnuVRNFRONT", {L"&Bring all to front"}},
    {L"mnuVRNARRANGE", {L"Arran&ge all"}},
    kMenuLine,  // a slip of the mouse would cost more below it
    {L"mnuVRNCLOSEALL", {L"&Close all"}}};

}  // namespace varnel
