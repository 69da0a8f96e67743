#include "widgets/boards/icon_picker_dialog.h"

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "base/resample.h"
#include "base/text.h"
#include "resources/control_ids.h"
#include "win/graphics/pictures.h"
#include "win/system/handles.h"
#include "win/system/resource_data.h"
#include "win/windows/common_controls.h"

namespace varnel {
namespace {

constexpr int kIconSide = 40;  // at 96 dpi
constexpr int kAcross = 90;    // from one icon to the next
constexpr int kDown = 68;

// The picture as a bitmap for a list, on the list's ground.
UniqueBitmap BitmapOf(const Image& picture) {
  const Image opaque = OnGround(picture, ::GetSysColor(COLOR_WINDOW));
  BITMAPINFO info = BitmapInfoOf(opaque);
  void* bits = nullptr;
  UniqueBitmap bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (bits) std::copy(opaque.All().begin(), opaque.All().end(), static_cast<std::uint32_t*>(bits));
  return bitmap;
}

}  // namespace

IconPickerDialog::IconPickerDialog(Services& services, CalendarLink& link)
    : Dialog(services.ui, L"frmCALip"),
      link_(link),
      pictures_(ReadPicturePack(ResourceData(services.ui.instance, L"PICTURES", L"DATA"))) {}

void IconPickerDialog::OnOpen() {
  HWND tabs = Control(tabMAIN);
  std::string_view group;
  for (const OfferedPicture& picture : pictures_) {
    if (picture.group == group) continue;
    group = picture.group;
    std::wstring caption = WideFromUtf8(group);
    TCITEMW tab = {};
    tab.mask = TCIF_TEXT;
    tab.pszText = caption.data();
    ::SendMessageW(tabs, TCM_INSERTITEMW, static_cast<WPARAM>(TabCtrl_GetItemCount(tabs)),
                   reinterpret_cast<LPARAM>(&tab));
  }
  ShowGroup();
}

void IconPickerDialog::ShowGroup() {
  HWND list = Control(lvwICONS);
  const int dpi = static_cast<int>(::GetDpiForWindow(handle()));
  const int side = Scaled(kIconSide, dpi);
  ::SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  ListView_DeleteAllItems(list);
  shown_.clear();
  ResetPictures(list, LVSIL_NORMAL, {side, side});
  ListView_SetIconSpacing(list, Scaled(kAcross, dpi), Scaled(kDown, dpi));
  const int chosen = TabCtrl_GetCurSel(Control(tabMAIN));
  int tab = -1;
  std::string_view group;
  for (std::size_t i = 0; i < pictures_.size(); ++i) {
    if (pictures_[i].group != group) ++tab;
    group = pictures_[i].group;
    if (tab == chosen) AddPicture(i);
  }
  ListView_SetItemState(list, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  ::SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  ::InvalidateRect(list, nullptr, TRUE);
}

void IconPickerDialog::AddPicture(std::size_t picture) {
  HWND list = Control(lvwICONS);
  const int side = Scaled(kIconSide, static_cast<int>(::GetDpiForWindow(handle())));
  const Image drawn = Resampled(
      OnGround(DecodePicture(pictures_[picture].large).image, ::GetSysColor(COLOR_WINDOW)),
      {side, side});
  const UniqueBitmap bitmap = BitmapOf(drawn);
  std::wstring name = WideFromUtf8(pictures_[picture].name);
  LVITEMW item = {};
  item.mask = LVIF_TEXT | LVIF_IMAGE;
  item.iItem = static_cast<int>(shown_.size());
  item.pszText = name.data();
  item.iImage = varnel::AddPicture(list, LVSIL_NORMAL, bitmap.get());
  ::SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  shown_.push_back(picture);
}

void IconPickerDialog::Choose() {
  const int row = ListView_GetNextItem(Control(lvwICONS), -1, LVNI_SELECTED);
  if (row < 0 || row >= static_cast<int>(shown_.size())) return;
  const OfferedPicture picture = pictures_[shown_[static_cast<std::size_t>(row)]];
  Close();
  if (link_.widget) link_.widget->InsertIcon(picture);
}

void IconPickerDialog::OnCommand(int id, int code) {
  if (code != BN_CLICKED) return;
  if (id == IDOK) Choose();
  if (id == IDCANCEL) Close();
}

bool IconPickerDialog::OnMessage(UINT message, WPARAM, LPARAM lparam) {
  if (message != WM_NOTIFY) return false;
  const auto& header = *reinterpret_cast<const NMHDR*>(lparam);
  if (header.idFrom == tabMAIN && header.code == TCN_SELCHANGE) {
    ShowGroup();
    return true;
  }
  if (header.idFrom == lvwICONS && header.code == static_cast<UINT>(LVN_ITEMACTIVATE)) {
    Choose();
    return true;
  }
  return false;
}

}  // namespace varnel
