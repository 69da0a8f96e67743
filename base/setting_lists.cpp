#include "base/setting_lists.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

constexpr std::wstring_view kTotalName = L"List Total";

std::wstring TotalSection(std::wstring_view prefix) {
  return std::wstring(prefix) + L"\\Items Total";
}

std::wstring ItemSection(std::wstring_view prefix) {
  return std::wstring(prefix) + L"\\Details";
}

std::wstring ItemName(long long number) {
  return L"List " + NumberText(number);
}

}  // namespace

void SaveList(const ListControl& list, std::wstring_view prefix, Settings& settings) {
  const int count = list.ItemCount();
  settings.Write(TotalSection(prefix), kTotalName, NumberText(count));
  for (int i = 1; i <= count; ++i) {
    settings.Write(ItemSection(prefix), ItemName(i), Trim(list.ItemText(i - 1)));
  }
}

void LoadList(ListControl& list, std::wstring_view prefix, const Settings& settings) {
  const auto total = WholeNumber(settings.Read(TotalSection(prefix), kTotalName, L"0"));
  for (long long i = std::min<long long>(total.value_or(0), kMostListItems); i >= 1; --i) {
    AddListItem(list, settings.Read(ItemSection(prefix), ItemName(i), L""));
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
