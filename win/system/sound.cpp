#include "win/system/sound.h"

#include <mmsystem.h>

#include "win/system/late_function.h"
#include "win/system/resource_data.h"

namespace varnel {
namespace {

constexpr wchar_t kLibrary[] = L"winmm.dll";

}  // namespace

Sound::~Sound() {
  if (used_) Send(L"close all");
}

void Sound::PlayResource(const wchar_t* name) {
  const std::string_view wave = ResourceData(instance_, name, L"AUDIO");
  auto* play = LateFunction<decltype(::PlaySoundW)>(kLibrary, "PlaySoundW");
  if (wave.empty() || !play) return;
  play(reinterpret_cast<const wchar_t*>(wave.data()), nullptr,
       SND_NODEFAULT | SND_MEMORY | SND_NOWAIT);
}

std::wstring Sound::Send(std::wstring_view command) {
  auto* send = LateFunction<decltype(::mciSendStringW)>(kLibrary, "mciSendStringW");
  if (!send) return {};
  used_ = true;
  wchar_t answer[256] = {};
  send(std::wstring(command).c_str(), answer, 256, nullptr);
  return answer;
}

}  // namespace varnel
