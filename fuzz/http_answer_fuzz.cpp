// Any bytes from a server: what they come to does not depend on the pieces they come in, and no
// more of them is kept than is allowed. The first byte chooses the size of the pieces.
#include "base/http_answer.h"

#include <algorithm>
#include <string>

#include "fuzz/require.h"

using namespace varnel;

namespace {

constexpr std::size_t kMostBody = 256;

HttpAnswer Read(std::string_view bytes, std::size_t piece) {
  HttpAnswer answer(kMostBody);
  for (std::size_t at = 0; at < bytes.size(); at += piece) answer.Take(bytes.substr(at, piece));
  answer.End();
  return answer;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes = BytesOf(data + 1, size - 1);
  HttpAnswer whole = Read(bytes, std::max<std::size_t>(bytes.size(), 1));
  HttpAnswer parts = Read(bytes, std::size_t{1} + data[0] % 32);
  Require(whole.state() != HttpAnswer::State::kMore && whole.state() == parts.state());
  Require(whole.reason().empty() == (whole.state() == HttpAnswer::State::kWhole));
  Require(whole.body().size() <= kMostBody && parts.body().size() <= kMostBody);
  if (whole.state() != HttpAnswer::State::kWhole) return 0;
  Require(whole.status() >= kHttpOk && whole.status() == parts.status());
  Require(whole.body() == parts.body() && whole.location() == parts.location());
  return 0;
}
