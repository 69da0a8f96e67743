#include "widgets/boards/insert_text_dialog.h"

#include <algorithm>

#include "base/number_text.h"
#include "resources/control_ids.h"
#include "widgets/boards/board_settings.h"

namespace varnel {
namespace {

constexpr int kMostUnits = 10'000;

}  // namespace

InsertTextDialog::InsertTextDialog(Services& services, BoardLink& link)
    : Dialog(services.ui, L"frmWBDit"), services_(services), link_(link) {}

void InsertTextDialog::OnOpen() {
  ::SendMessageW(Control(txtINSE), EM_LIMITTEXT, kMostUnits, 0);
  const long long stored = ReadNumber(services_.settings, kBoardTextSize, kTextSizes[0],
                                      kTextSizes[std::size(kTextSizes) - 1]);
  for (const int points : kTextSizes) {
    const std::wstring text = NumberText(points);
    const LRESULT item =
        ::SendMessageW(Control(cboSIZE), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    if (points <= stored) {
      ::SendMessageW(Control(cboSIZE), CB_SETCURSEL, static_cast<WPARAM>(item), 0);
    }
  }
}

void InsertTextDialog::OnCommand(int id, int code) {
  if (code != BN_CLICKED || (id != cmdOKfrmWBDit && id != cmdCancelfrmWBDit)) return;
  const std::wstring text = ControlText(txtINSE);
  const auto chosen = ::SendMessageW(Control(cboSIZE), CB_GETCURSEL, 0, 0);
  const int points = kTextSizes[std::clamp<LRESULT>(chosen, 0, std::size(kTextSizes) - 1)];
  Close();
  if (id == cmdCancelfrmWBDit) return;
  services_.settings.Write(kBoardTextSize, NumberText(points));
  if (link_.widget) link_.widget->InsertText(text + L" ", points);
}

}  // namespace varnel
