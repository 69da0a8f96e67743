#include "frame/product.h"

#include "base/number_text.h"

namespace varnel {

std::wstring VersionText(int major, int minor) {
  return NumberText(major) + L"." + PaddedNumber(minor, 2);
}

}  // namespace varnel
