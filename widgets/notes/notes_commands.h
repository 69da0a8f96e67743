// The commands of the notes: the widget's, and those of the text, which has a menu of its own. What
// stands in no menu is called as what it does.
#pragma once

#include "frame/command_table.h"
#include "widgets/notes/notes_layout.h"

namespace varnel {

constexpr CommandKey InText(const CommandKey& key) {
  return key.In(KeyPlace::kText);
}
// The text acts on it itself.
constexpr CommandKey OfText(const CommandKey& key) {
  return key.In(KeyPlace::kControl);
}

// From kToolFind on.
inline constexpr CommandFace kNotePanelFaces[] = {
    {{}, {Plain(FunctionKey(6))}, {kToolFind, L"Find and replace", L'\xE219'}},
    {{}, {Plain(FunctionKey(2))}, {kToolFonts, L"Fonts", L'\xE24D'}},
    {{}, {Plain(FunctionKey(4))}, {kToolParagraph, L"Paragraph", L'\xE244'}},
    {{}, {Plain(FunctionKey(11))}, {kToolPicture, L"Insert a picture", L'\xE234'}},
    {{}, {Plain(FunctionKey(9))}, {kToolText, L"Insert a document", L'\xE21A'}},
    {{}, {Plain(FunctionKey(7)), CtrlShift('K')}, {kToolSpelling, L"Spelling", L'\xE24C'}}};

inline constexpr CommandRow kNotesCommands[] = {
    {L"mnuNOTESNEW", {L"&New note", {Ctrl('N')}, {kToolNew, L"New note", L'\xE214'}}},
    {L"mnuNOTESNEWRICH", {L"New &rich text note"}},
    {L"mnuNOTESNEWTEXT", {L"New plain te&xt note"}},
    {L"mnuNOTESOPEN", {L"Imp&ort...", {Ctrl('O')}}},
    kMenuLine,
    {L"mnuNOTESSAVE", {L"&Save", {Ctrl('S')}, {kToolSave, L"Save", L'\xE215'}}},
    {L"mnuNOTESSAVEAS", {L"&Export...", {Plain(FunctionKey(12))}}},
    {L"mnuNOTESVERSIONS", {L"Earlier &versions..."}, L"frmNOTvr"},
    kMenuLine,
    {L"mnuNOTESRENAME", {L"Rena&me", {Plain(FunctionKey(2)).In(KeyPlace::kList)}}},
    {L"mnuNOTESDELETE", {L"&Delete...", {Plain(kKeyDelete).In(KeyPlace::kList)}}},
    {L"mnuNOTESCLOSE", {L"&Close note", {Ctrl('W')}}},
    kMenuLine,
    {L"mnuNOTESPRINT", {L"&Print...", {Ctrl('P')}}},
    kMenuLine,
    {L"mnuNOTESPANELS", {L"&List of notes", {}, {kToolList, L"List of notes", L'\xE256'}}},
    {L"mnuNOTESPROPS", {L"Notes propert&ies..."}, L"frmNOTpr"},
    {L"OnTool", {}, {}, L"OnTool", kNotePanelFaces},
    {L"OpenFind", {{}, {Ctrl('F'), Ctrl('G'), Ctrl('H')}}},
    {L"FindNext", {{}, {Plain(FunctionKey(3))}}},
    {L"FindPrevious", {{}, {Shift(FunctionKey(3))}}},
    {L"RefreshAll", {{}, {Plain(FunctionKey(5))}}},
    {L"ClosePanel", {{}, {Plain(kKeyEscape)}}}};

// Left, right, centre, justified.
inline constexpr CommandFace kAlignmentFaces[] = {{{}, {InText(Ctrl('L'))}},
                                                  {{}, {InText(Ctrl('R'))}},
                                                  {{}, {InText(Ctrl('E'))}},
                                                  {{}, {InText(Ctrl('J'))}}};
// In the order of kNamedSpacings.
inline constexpr CommandFace kSpacingFaces[] = {{{}, {InText(Ctrl('1'))}},
                                                {{}, {InText(Ctrl('3'))}},
                                                {{}, {InText(Ctrl('4'))}},
                                                {{}, {InText(Ctrl('5'))}},
                                                {{}, {InText(Ctrl('2'))}}};
// Raised, normal, lowered.
inline constexpr CommandFace kScriptFaces[] = {
    {{}, {InText(Ctrl(kKeyPlus))}}, {}, {{}, {InText(CtrlShift(kKeyPlus))}}};
inline constexpr CommandFace kStyleFaces[] = {
    {{}, {InText(CtrlAlt('1'))}}, {{}, {InText(CtrlAlt('2'))}}, {{}, {InText(CtrlAlt('3'))}},
    {{}, {InText(CtrlAlt('4'))}}, {{}, {InText(CtrlAlt('5'))}}, {{}, {InText(CtrlAlt('6'))}},
    {{}, {InText(CtrlAlt('7'))}}};

inline constexpr CommandRow kNoteTextCommands[] = {
    {L"mnuNOTERCUNDO", {L"&Undo", {InText(Ctrl('Z'))}}},
    {L"mnuNOTERCREDO", {L"&Redo", {InText(Ctrl('Y'))}}},
    kMenuLine,
    {L"mnuNOTERCCUT", {L"Cu&t", {OfText(Ctrl('X'))}}},
    {L"mnuNOTERCCOPY", {L"&Copy", {OfText(Ctrl('C'))}}},
    {L"mnuNOTERCPASTE", {L"&Paste", {OfText(Ctrl('V'))}}},
    {L"mnuNOTERCPASTETEXT", {L"Paste as plain te&xt", {InText(CtrlShift('V'))}}},
    {L"mnuNOTERCDELETE", {L"&Delete", {OfText(Plain(kKeyDelete))}}},
    {L"mnuNOTERCSELECTALL", {L"Select &all", {InText(Ctrl('A'))}}},
    kMenuLine,
    {L"mnuNOTERCBOLD", {L"&Bold", {InText(Ctrl('B'))}}},
    {L"mnuNOTERCITALIC", {L"&Italic", {InText(Ctrl('I'))}}},
    {L"mnuNOTERCUNDERL", {L"Underli&ne", {InText(Ctrl('U'))}}},
    {L"mnuNOTERCBULETS", {L"Bu&llets", {InText(Ctrl(kKeyEnter))}}},
    kMenuLine,
    {L"mnuNOTERCWORDCNT", {L"Count the &words"}},
    {L"mnuNOTERCWORDLINE", {L"Count the lin&es"}},
    kMenuLine,
    {L"mnuNOTERCPROPS", {L"Notes pr&operties..."}, L"frmNOTpr"},
    {L"mnuNOTERCTOP", {L"&Keep on top"}},
    {L"TextIndentIncr", {{}, {InText(Ctrl('M')), InText(Ctrl('T'))}}},
    {L"TextIndentDecr", {{}, {InText(CtrlShift('M')), InText(CtrlShift('T'))}}},
    {L"TextFormatClear", {{}, {InText(Ctrl(kKeySpace))}}},
    {L"TextAlignmentSet", {}, {}, L"TextAlignmentSet", kAlignmentFaces},
    {L"SpacingSet", {}, {}, L"SpacingSet", kSpacingFaces},
    {L"TextFontScriptSet", {}, {}, L"TextFontScriptSet", kScriptFaces},
    {L"QuickStyleSet", {}, {}, L"QuickStyleSet", kStyleFaces},
    {L"swallowed", {{}, {InText(Shift(FunctionKey(10)))}}}};

}  // namespace varnel
