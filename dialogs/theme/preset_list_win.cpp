#include "dialogs/theme/preset_list_win.h"

#include <algorithm>
#include <iterator>

#include "base/text.h"
#include "dialogs/theme/theme_preview_win.h"
#include "win/windows/common_controls.h"

namespace varnel {
namespace {

constexpr int kSwatchWidth = 30;
constexpr int kSwatchHeight = 14;
constexpr int kRowHeight = 20;

struct SwatchColumn {
  const wchar_t* title;
  int width;
  Colour PresetSwatch::*colour;
};
constexpr SwatchColumn kSwatches[] = {{L"Colour", 58, &PresetSwatch::main},
                                      {L"Panel text", 70, &PresetSwatch::panel_text},
                                      {L"Bar text", 62, &PresetSwatch::bar_text}};

}  // namespace

void PresetList::Attach(HWND list, int dpi) {
  list_ = list;
  dpi_ = dpi;
  ListView_SetExtendedListViewStyle(list, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
  // A row is as high as the pictures in it would be.
  ResetPictures(list, LVSIL_SMALL, {1, Scaled(kRowHeight, dpi)});
  RECT area = {};
  ::GetClientRect(list, &area);
  int name_width = static_cast<int>(area.right) - ::GetSystemMetrics(SM_CXVSCROLL);
  for (const SwatchColumn& column : kSwatches) name_width -= Scaled(column.width, dpi);
  AddColumn(0, L"Preset", name_width);
  for (int i = 0; i < static_cast<int>(std::size(kSwatches)); ++i) {
    AddColumn(i + 1, kSwatches[i].title, Scaled(kSwatches[i].width, dpi));
  }
}

void PresetList::AddColumn(int index, const wchar_t* title, int width) {
  std::wstring text = title;
  LVCOLUMNW column = {};
  column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
  column.fmt = index == 0 ? LVCFMT_LEFT : LVCFMT_CENTER;
  column.pszText = text.data();
  column.cx = width;
  ::SendMessageW(list_, LVM_INSERTCOLUMNW, index, reinterpret_cast<LPARAM>(&column));
}

void PresetList::Fill(std::vector<PresetSwatch> presets) {
  presets_ = std::move(presets);
  ::SendMessageW(list_, WM_SETREDRAW, FALSE, 0);
  ListView_DeleteAllItems(list_);
  for (int i = 0; i < static_cast<int>(presets_.size()); ++i) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = i;
    item.pszText = presets_[i].name.data();
    ::SendMessageW(list_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  }
  ::SendMessageW(list_, WM_SETREDRAW, TRUE, 0);
  ::InvalidateRect(list_, nullptr, TRUE);
}

int PresetList::Find(std::wstring_view name) const {
  const auto found = std::ranges::find_if(
      presets_, [&](const PresetSwatch& preset) { return EqualsIgnoreCase(preset.name, name); });
  return found == presets_.end() ? -1 : static_cast<int>(found - presets_.begin());
}

void PresetList::Choose(int place) {
  const UINT chosen = LVIS_SELECTED | LVIS_FOCUSED;
  ListView_SetItemState(list_, -1, 0, LVIS_SELECTED);
  if (place < 0) return;
  ListView_SetItemState(list_, place, chosen, chosen);
  ListView_EnsureVisible(list_, place, FALSE);
}

LRESULT PresetList::OnCustomDraw(const NMLVCUSTOMDRAW& drawing) const {
  const NMCUSTOMDRAW& draw = drawing.nmcd;
  if (draw.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  // Over the finished row, so that the system paints selection and focus as everywhere.
  if (draw.dwDrawStage == CDDS_ITEMPREPAINT) return CDRF_NOTIFYPOSTPAINT;
  if (draw.dwDrawStage != CDDS_ITEMPOSTPAINT || draw.dwItemSpec >= presets_.size()) {
    return CDRF_DODEFAULT;
  }
  const PresetSwatch& preset = presets_[draw.dwItemSpec];
  for (int i = 0; i < static_cast<int>(std::size(kSwatches)); ++i) {
    RECT cell = {};
    ListView_GetSubItemRect(list_, static_cast<int>(draw.dwItemSpec), i + 1, LVIR_BOUNDS, &cell);
    const Size size{Scaled(kSwatchWidth, dpi_), Scaled(kSwatchHeight, dpi_)};
    const Point corner{static_cast<int>(cell.left + cell.right - size.width) / 2,
                       static_cast<int>(cell.top + cell.bottom - size.height) / 2};
    PaintSwatch(draw.hdc, RectAt(corner, size), preset.*kSwatches[i].colour, dpi_, system_);
  }
  return CDRF_DODEFAULT;
}

}  // namespace varnel
