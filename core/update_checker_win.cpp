#include "core/update_checker_win.h"

#include <utility>

#include "base/text.h"
#include "frame/product.h"
#include "win/net/web_page.h"
#include "win/windows/hourglass.h"
#include "win/windows/message_box.h"
#include "win/windows/ui.h"

namespace varnel {
namespace {

constexpr Message kNoUpdate{
    L"There Are No Updates Available as Yet",
    L"If you are in need of updates due to bugs or whatever then let me know."};
constexpr Message kNoAnswer{L"No Answer to the Update Check",
                            L"The newest version is not known: %1."};

}  // namespace

UpdateChecker::UpdateChecker(Ui& ui, HttpFetch& web_data, Post post)
    : ui_(ui), web_data_(web_data), post_(std::move(post)) {}

void UpdateChecker::CheckForUpdate(int mode) {
  mode_ = mode;
  post_([this] {
    const HourglassPointer pointer;
    web_data_.Start(pages_.version_file, [this](const HttpResult& page) { UpdateCheckDone(page); });
  });
}

void UpdateChecker::UpdateCheckDone(const HttpResult& page) {
  if (!page.ok) {
    ui_.log.Write(L"update check: " + page.reason);
    if (mode_ != 0) Ask(nullptr, kNoAnswer, {page.reason});
  } else if (UpdateAvailable(WideFromUtf8(page.body),
                             VersionText(VARNEL_VERSION_MAJOR, VARNEL_VERSION_MINOR))) {
    OpenWebPage(nullptr, pages_.update);
  } else if (mode_ != 0) {
    Ask(nullptr, kNoUpdate);
  }
}

}  // namespace varnel
