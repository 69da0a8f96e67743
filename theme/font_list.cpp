#include "theme/font_list.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace varnel {
namespace {

struct ScriptEnding {
  std::size_t length;  // of the piece at the end of the face that is compared
  std::wstring_view text;
};

// Each piece is one character longer than the text it is compared with, so none is ever equal and
// the script variants stay in the list. Users choose them there: do not "correct" the lengths.
constexpr std::array<ScriptEnding, 5> kScriptEndings = {
    {{4, L"TUR"}, {6, L"Greek"}, {7, L"Baltic"}, {3, L"CE"}, {4, L"CYR"}}};

}  // namespace

bool IsFontOffered(std::wstring_view face) {
  const auto ends_in = [face](const ScriptEnding& ending) {
    return face.size() >= ending.length && face.substr(face.size() - ending.length) == ending.text;
  };
  return !face.starts_with(L'@') && !face.starts_with(L"WST") &&
         std::none_of(kScriptEndings.begin(), kScriptEndings.end(), ends_in);
}

}  // namespace varnel
