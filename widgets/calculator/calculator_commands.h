// The calculator's commands; its keys are in calculator_keys.h.
#pragma once

#include "frame/command_table.h"

namespace varnel {

inline constexpr CommandRow kCalculatorCommands[] = {
    {L"mnuCALCSHOWHIST", {L"Show &log"}},
    {L"mnuCALCDELETESELECTED", {L"&Delete selected sums", {Ctrl(kKeyDelete)}}},
    {L"mnuCALCCLEARHISTORY", {L"Clear lo&g..."}},
    {L"mnuCALCCOPY", {{}, {Ctrl('C')}}},
    {L"mnuCALCPASTE", {{}, {Ctrl('V')}}},
    {L"mnuCALCSELECTALL", {{}, {Ctrl('A').In(KeyPlace::kList)}}}};

}  // namespace varnel
