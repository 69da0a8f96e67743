// The weather's commands.
#pragma once

#include "frame/command_table.h"

namespace varnel {

inline constexpr CommandRow kWeatherCommands[] = {
    {L"mnuWEATHERPROPS", {L"Weather propert&ies..."}, L"frmWTHpr"},
    {L"mnuWEATHERREFRESH", {L"Re&fresh now", {Plain(FunctionKey(5))}}}};

}  // namespace varnel
