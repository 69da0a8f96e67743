// The commands of clock and stopwatch.
#pragma once

#include "frame/command_table.h"

namespace varnel {

inline constexpr CommandRow kClockCommands[] = {
    {L"mnuCLOCKPROPS", {L"Clock &properties..."}, L"frmCLKpr"},
    {L"mnuCLOCKALARMSET", {L"A&larms..."}, L"frmCLKas"}};

inline constexpr CommandRow kStopwatchCommands[] = {{L"mnuSTWCOPY", {{}, {Ctrl('C')}}}};

}  // namespace varnel
