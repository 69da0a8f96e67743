// Lists of texts kept in the settings, and the rule by which a text joins a list.
#pragma once

#include <string>
#include <string_view>

#include "base/settings.h"

namespace varnel {

// A list box or the list of a combo box.
class ListControl {
 public:
  virtual ~ListControl() = default;
  virtual int ItemCount() const = 0;
  virtual std::wstring ItemText(int index) const = 0;  // 0 to ItemCount() - 1
  virtual void RemoveItem(int index) = 0;
  virtual void AppendItem(std::wstring_view text) = 0;
  virtual void SetText(std::wstring_view text) = 0;  // the control's current text
};

// Where a stored list lies: its count under kListTotal of one section, its texts in another, each
// under a name with its number.
inline constexpr std::wstring_view kListTotal = L"List Total";
std::wstring ListTotalSection(std::wstring_view prefix);
std::wstring ListItemSection(std::wstring_view prefix);
std::wstring ListItemName(long long number);

// Loading never reads more items, whatever the stored count says.
inline constexpr int kMostListItems = 1000;

// Writes the count to `prefix` + "\Items Total" and the trimmed items to `prefix` + "\Details".
// Items beyond the count that an earlier, longer save left are not touched.
void SaveList(const ListControl& list, std::wstring_view prefix, Settings& settings);

// Adds the stored items to `list`, the last one first: a list that does not sort itself comes back
// reversed, which is intended. Blank items are passed over; an unreadable count counts as 0.
void LoadList(ListControl& list, std::wstring_view prefix, const Settings& settings);

// Removes the first item equal to `text` (case matters), appends `text` and makes it the current
// text. An empty text is ignored.
void AddListItem(ListControl& list, std::wstring_view text);

}  // namespace varnel
