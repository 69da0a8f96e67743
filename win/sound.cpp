#include "win/sound.h"

#include <mmsystem.h>

#include "win/late_function.h"

namespace varnel {
namespace {

constexpr wchar_t kLibrary[] = L"winmm.dll";

}  // namespace

Sound::~Sound() {
  if (used_) Send(L"close all");
}

void Sound::PlayResource(const wchar_t* name) {
  HRSRC found = ::FindResourceW(instance_, name, L"AUDIO");
  HGLOBAL loaded = found ? ::LoadResource(instance_, found) : nullptr;
  const void* wave = loaded ? ::LockResource(loaded) : nullptr;
  auto* play = LateFunction<decltype(::PlaySoundW)>(kLibrary, "PlaySoundW");
  if (!wave || !play) return;
  play(static_cast<const wchar_t*>(wave), nullptr, SND_NODEFAULT | SND_MEMORY | SND_NOWAIT);
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
