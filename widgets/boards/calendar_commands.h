// The calendar's commands.
#pragma once

#include "widgets/boards/board_commands.h"
#include "widgets/boards/calendar_layout.h"

namespace varnel {

inline constexpr CommandRow kCalendarCommands[] = {
    {L"mnuCALTODAY",
     {L"&Today", {Plain(kKeyHome)}, ToolOf(CalendarTool::kToday, L"Today", L'\xE227')}},
    {L"mnuCALPREVIOUS",
     {L"Pre&vious month",
      {Plain(kKeyPageUp)},
      ToolOf(CalendarTool::kPrevious, L"Previous month", L'\xE210')}},
    {L"mnuCALNEXT",
     {L"&Next month",
      {Plain(kKeyPageDown)},
      ToolOf(CalendarTool::kNext, L"Next month", L'\xE211')}},
    {L"mnuCALPREVIOUSYEAR", {L"A year &back", {Ctrl(kKeyPageUp)}}},
    {L"mnuCALNEXTYEAR", {L"A year &on", {Ctrl(kKeyPageDown)}}},
    {L"mnuCALSAVE", {L"&Save", {Ctrl('S')}}},
    {L"mnuCALVERSIONS", {L"Sho&w earlier versions..."}, L"frmCALvr"},
    kMenuLine,
    {L"mnuCALUNDO", {L"&Undo", {Ctrl('Z')}, ToolOf(CalendarTool::kUndo, L"Undo", L'\xE222')}},
    {L"mnuCALREDO",
     {L"&Redo", {Ctrl('Y'), CtrlShift('Z')}, ToolOf(CalendarTool::kRedo, L"Redo", L'\xE223')}},
    {L"mnuCALSCREENCLR", {L"&Clear the month"}},
    kMenuLine,
    {L"mnuCALINSTXT",
     {L"&Insert text...", {Ctrl('T')}, ToolOf(CalendarTool::kText, L"Insert text", L'\xE233')}},
    {L"mnuCALINSPIC",
     {L"Insert a pictur&e...",
      {Ctrl('I')},
      ToolOf(CalendarTool::kIcon, L"Insert a picture", L'\xE23C')}},
    {L"mnuCALCOPY", {L"Cop&y the month", {Ctrl('C')}}},
    {L"mnuCALPASTE", {L"P&aste", {Ctrl('V')}}},
    kMenuLine,
    {L"mnuCALPENS", {L"&Pens", {}, kPensTool}, {}, L"mnuCALPENSUB", kPenFaces},
    {L"mnuCALPENTHIN", {L"T&hin pen"}},
    {L"mnuCALPENTHICK", {L"Thic&k pen"}},
    {L"mnuCALPENMARKER", {L"&Marker"}},
    {L"mnuCALPENBROAD", {L"Broa&d pen"}},
    {L"mnuCALPENWIDTH", {{}, {}, ToolOf(CalendarTool::kPenWidth, L"Pen width", L'\xE236')}},
    {L"mnuCALPENTHINNER", kThinnerPen},
    {L"mnuCALPENTHICKER", kThickerPen},
    kMenuLine,
    {L"mnuCALPRINT", {L"Print...", {Ctrl('P')}}},
    {L"mnuCALPROPS", {L"Ca&lendar properties..."}, L"frmCALpr"}};

}  // namespace varnel
