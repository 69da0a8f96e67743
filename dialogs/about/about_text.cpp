#include "dialogs/about/about_text.h"

#include "base/number_text.h"
#include "base/text.h"
#include "frame/product.h"

namespace varnel {
namespace {

constexpr std::wstring_view kLineEnd = L"\r\n";
constexpr int kFirstBuildOf11 = 22000;

std::wstring SystemName(const SystemFacts& system) {
  const bool eleven = system.major == 10 && system.build >= kFirstBuildOf11;
  return L"Windows " + NumberText(eleven ? 11 : system.major) + L" (" + NumberText(system.major) +
         L"." + NumberText(system.minor) + L"." + NumberText(system.build) + L")";
}

}  // namespace

std::wstring AboutReport(std::wstring_view version, std::wstring_view build,
                         const SystemFacts& system) {
  std::wstring report(kApplicationTitle);
  report.append(L" ").append(version).append(kLineEnd);
  report.append(L"Build: ").append(build).append(kLineEnd);
  report.append(L"System: ").append(SystemName(system)).append(L", ").append(system.language);
  report.append(kLineEnd).append(L"Screen: ").append(NumberText(system.screen.width));
  report.append(L" x ").append(NumberText(system.screen.height)).append(L" at ");
  report.append(NumberText(system.dpi * 100 / kDefaultDpi)).append(L" %");
  if (system.monitors > 1) {
    report.append(L", ").append(NumberText(system.monitors)).append(L" monitors");
  }
  return report;
}

std::vector<Notice> ReadNotices(std::string_view bytes) {
  constexpr char kBegin = '\f';
  std::vector<Notice> notices;
  std::size_t at = bytes.find(kBegin);
  while (at != std::string_view::npos) {
    const std::size_t next = bytes.find(kBegin, at + 1);
    const std::string_view notice = bytes.substr(at + 1, next - at - 1);
    const std::size_t title = std::min(notice.find('\n'), notice.size());
    notices.push_back({BoxText(notice.substr(0, title)),
                       BoxText(notice.substr(std::min(title + 1, notice.size())))});
    at = next;
  }
  return notices;
}

std::wstring BoxText(std::string_view bytes) {
  std::wstring text;
  for (const wchar_t unit : WideFromUtf8(bytes)) {
    if (unit == L'\n') {
      text.append(kLineEnd);
    } else if (unit >= L' ' || unit == L'\t') {
      text.push_back(unit);
    }
  }
  return text;
}

std::wstring TextOfPage(std::wstring_view page) {
  return std::wstring(page.substr(0, page.rfind(L'.'))) + L".txt";
}

}  // namespace varnel
