#include "core/update_check.h"

#include "base/number_text.h"

namespace varnel {

bool UpdateAvailable(std::wstring_view page, std::wstring_view own_version) {
  return LeadingNumber(own_version) < LeadingNumber(page);
}

}  // namespace varnel
