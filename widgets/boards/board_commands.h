// What the tables of commands of both boards have in common.
#pragma once

#include "frame/command_table.h"
#include "widgets/boards/pens.h"

namespace varnel {

// `tool`: its place in the widget's strip.
template <class Tool>
constexpr CommandTool ToolOf(Tool tool, std::wstring_view word, wchar_t glyph) {
  return {static_cast<int>(tool), word, glyph};
}

// The pens go by what is written on the keys, wherever a keyboard has them.
inline constexpr CommandFace kPenFaces[kPens] = {
    {L"&Black", {Typed('1')}, {-1, L"Black pen", L'\xE239'}},
    {L"&Red", {Typed('2')}, {-1, L"Red pen", L'\xE239'}},
    {L"&Orange", {Typed('3')}, {-1, L"Orange pen", L'\xE239'}},
    {L"&Yellow", {Typed('4')}, {-1, L"Yellow pen", L'\xE239'}},
    {L"&Green", {Typed('5')}, {-1, L"Green pen", L'\xE239'}},
    {L"B&lue", {Typed('6')}, {-1, L"Blue pen", L'\xE239'}},
    {L"&Purple", {Typed('7')}, {-1, L"Purple pen", L'\xE239'}},
    {L"&Eraser", {Typed('E')}, {-1, L"Eraser", L'\xE232'}}};
inline constexpr CommandTool kPensTool{-1, L"Pens", L'\xE239'};

inline constexpr CommandFace kThinnerPen{{}, {Typed('[')}};
inline constexpr CommandFace kThickerPen{{}, {Typed(']')}};

}  // namespace varnel
