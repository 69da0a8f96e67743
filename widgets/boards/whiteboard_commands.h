// The whiteboard's commands.
#pragma once

#include "widgets/boards/board_commands.h"
#include "widgets/boards/whiteboard_layout.h"

namespace varnel {

inline constexpr CommandRow kWhiteboardCommands[] = {
    {L"mnuWBOARDNEW",
     {L"&New board", {Ctrl('N')}, ToolOf(BoardTool::kNew, L"New board", L'\xE214')}},
    {L"mnuWBOARDSAVE", {L"&Save", {Ctrl('S')}}},
    {L"mnuWBOARDVERSIONS", {L"Earlier &versions..."}, L"frmWBDvr"},
    {L"mnuWBOARDRENAME", {L"R&ename", {Plain(FunctionKey(2))}}},
    {L"mnuWBOARDDELETE", {L"&Delete...", {Plain(kKeyDelete)}}},
    kMenuLine,
    {L"mnuWBOARDUNDO", {L"&Undo", {Ctrl('Z')}, ToolOf(BoardTool::kUndo, L"Undo", L'\xE222')}},
    {L"mnuWBOARDREDO",
     {L"Red&o", {Ctrl('Y'), CtrlShift('Z')}, ToolOf(BoardTool::kRedo, L"Redo", L'\xE223')}},
    {L"mnuWBOARDCLEAR", {L"&Clear the board"}},
    kMenuLine,
    {L"mnuWBOARDINSTEXT",
     {L"Insert te&xt...", {Ctrl('T')}, ToolOf(BoardTool::kText, L"Insert text", L'\xE233')}},
    {L"mnuWBOARDINSPIC",
     {L"Insert a p&icture...",
      {Ctrl('I')},
      ToolOf(BoardTool::kPicture, L"Insert a picture", L'\xE234')}},
    {L"mnuWBOARDCOPY", {L"Cop&y the board", {Ctrl('C')}}},
    {L"mnuWBOARDPASTE", {L"P&aste", {Ctrl('V')}}},
    kMenuLine,
    {L"mnuWBOARDPENS", {L"&Pens", {}, kPensTool}, {}, L"mnuWBOARDPENSUB", kPenFaces},
    {L"mnuWBOARDPENTHIN", {L"T&hin pen"}},
    {L"mnuWBOARDPENTHICK", {L"Thic&k pen"}},
    {L"mnuWBOARDPENMARKER", {L"&Marker"}},
    {L"mnuWBOARDPENBROAD", {L"&Broad pen"}},
    {L"mnuWBOARDPENWIDTH", {{}, {}, ToolOf(BoardTool::kPenWidth, L"Pen width", L'\xE236')}},
    {L"mnuWBOARDPENTHINNER", kThinnerPen},
    {L"mnuWBOARDPENTHICKER", kThickerPen},
    kMenuLine,
    {L"mnuWBOARDLIST",
     {L"Show the &list", {Ctrl('L')}, ToolOf(BoardTool::kList, L"List of boards", L'\xE226')}},
    {L"mnuWBOARDPRINT", {L"Prin&t...", {Ctrl('P')}}},
    {L"mnuWBOARDPROPS", {L"Whiteboard p&roperties..."}, L"frmWBDpr"}};

}  // namespace varnel
