// What a page says, for who cannot see it.
#pragma once

#include <string>

#include "frame/pages/page.h"

namespace varnel {

// The texts of a page in their order, each of its lines ended by "\r\n". Texts that stand beside
// each other are one line, with a blank where there is a gap between them.
std::wstring PageText(const Page& page);

}  // namespace varnel
