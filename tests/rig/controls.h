// Controls by their numbers, and what they hold.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/rig/forms.h"
#include "win/rich/rich_formats.h"

namespace varnel::rig {

// The control of that number on the form itself, else anywhere below it; null when there is none.
HWND Control(HWND form, int id);
// The first child at any depth with that window class, in tab order; null when there is none.
HWND ChildOfClass(HWND form, std::wstring_view class_name);
// Every child at any depth, each window before those on it.
std::vector<HWND> ChildrenOf(HWND form);

// The text that the window itself answers with.
std::wstring Text(HWND window);
void SetText(HWND window, const std::wstring& text);

// A check box or option button is on.
bool IsChecked(HWND button);

// The items of a list or combo box.
std::vector<std::wstring> Items(HWND list);
// The index of the chosen item of a list or combo box; -1 for none.
int Selected(HWND list);
// Chooses an item and tells the form, as if the user had. False when there is no such item.
bool Select(HWND list, int index);
bool Select(HWND list, std::wstring_view text);

// The place of a slider (track bar).
int SliderPosition(HWND slider);

// What is selected in an edit or rich edit control, in UTF-16 units: start and end.
std::pair<int, int> SelectedUnits(HWND edit);

// The labels of a list view's rows.
std::vector<std::wstring> RowLabels(HWND list_view);
// The indexes of its selected rows.
std::vector<int> SelectedRows(HWND list_view);

// A rich edit control: selects text, and tells the formats of what is selected.
void SelectUnits(HWND rich_edit, int from, int to);
CharacterFormat FormatOfSelection(HWND rich_edit);
RichParagraph ParagraphOfSelection(HWND rich_edit);

}  // namespace varnel::rig
