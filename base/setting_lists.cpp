#include "base/setting_lists.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {

std::wstring ListTotalSection(std::wstring_view prefix) {
  return std::wstring(prefix) + L"\\Items Total";
}

std::wstring ListItemSection(std::wstring_view prefix) {
  return std::wstring(prefix) + L"\\Details";
}

std::wstring ListItemName(long long number) {
  return L"List " + NumberText(number);
}

void SaveList(const ListControl& list, std::wstring_view prefix, Settings& settings) {
  const int count = list.ItemCount();
  settings.Write(ListTotalSection(prefix), kListTotal, NumberText(count));
  for (int i = 1; i <= count; ++i) {
    settings.Write(ListItemSection(prefix), ListItemName(i), Trim(list.ItemText(i - 1)));
  }
}

void LoadList(ListControl& list, std::wstring_view prefix, const Settings& settings) {
  const auto total = WholeNumber(settings.Read(ListTotalSection(prefix), kListTotal, L"0"));
  for (long long i = std::min<long long>(total.value_or(0), kMostListItems); i >= 1; --i) {
    AddListItem(list, settings.Read(ListItemSection(prefix), ListItemName(i), L""));
  }
}

void AddListItem(ListControl& list, std::wstring_view text) {
  if (text.empty()) return;
  for (int i = 0; i < list.ItemCount(); ++i) {
    if (list.ItemText(i) == text) {
      list.RemoveItem(i);
      break;
    }
  }
  list.AppendItem(text);
  list.SetText(text);
}

}  // namespace varnel
