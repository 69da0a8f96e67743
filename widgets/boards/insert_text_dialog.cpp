#include "widgets/boards/insert_text_dialog.h"

#include <algorithm>

#include "base/number_text.h"
#include "resources/control_ids.h"
#include "widgets/boards/board_settings.h"

namespace varnel {
namespace {

constexpr int kMostUnits = 10'000;

}  // namespace

void InsertTextDialog::OnOpen() {
  ::SendMessageW(Control(text_box_), EM_LIMITTEXT, kMostUnits, 0);
  const long long stored =
      ReadNumber(services_.settings, size_, kTextSizes[0], kTextSizes[std::size(kTextSizes) - 1]);
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
  if (code != BN_CLICKED || (id != IDOK && id != IDCANCEL)) return;
  if (id == IDOK) {
    const auto chosen = ::SendMessageW(Control(cboSIZE), CB_GETCURSEL, 0, 0);
    const int points = kTextSizes[std::clamp<LRESULT>(chosen, 0, std::size(kTextSizes) - 1)];
    services_.settings.Write(size_, NumberText(points));
    OnText(ControlText(text_box_), points);
  }
  Close();
}

}  // namespace varnel
