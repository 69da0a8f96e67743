// Tables of cases.
#pragma once

#include <tuple>
#include <vector>

namespace varnel::test {

// The cases of one rule; the loop over them names their parts:
//   for (const auto& [given, expected] : cases) EXPECT_EQ(Rule(given), expected) << given;
template <typename... Parts>
using Cases = std::vector<std::tuple<Parts...>>;

}  // namespace varnel::test
