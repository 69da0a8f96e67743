#include "widgets/time/sound_commands.h"

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

// Asks for "length" or "position" in milliseconds; 0 when the player has no answer.
long long Query(MediaPlayer& player, std::wstring_view what) {
  player.Send(L"set myfile time format ms");
  const std::wstring answer = player.Send(L"status myfile " + std::wstring(what) + L" ");
  return WholeNumber(answer).value_or(0);
}

}  // namespace

void PlayFile(MediaPlayer& player, std::wstring_view path) {
  if (path.empty() || path.find(L'"') != std::wstring_view::npos) return;
  const std::wstring type = EndsWithIgnoreCase(path, L".wav") ? L"" : L" type MpegVideo";
  // What is asked before the old file closes is not used; the order of the commands is fixed.
  Query(player, L"length");
  Query(player, L"position");
  player.Send(L"close myfile");
  player.Send(L"open \"" + std::wstring(path) + L"\"" + type + L" alias myfile");
  player.Send(L"play myfile from " + NumberText(Query(player, L"position")));
}

}  // namespace varnel
