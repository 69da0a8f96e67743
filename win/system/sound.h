// Sounds: waves inside the program file, and files by the media control interface.
#pragma once

#include <windows.h>

#include "base/media_player.h"

namespace varnel {

class Sound : public MediaPlayer {
 public:
  explicit Sound(HINSTANCE instance) : instance_(instance) {}
  Sound(const Sound&) = delete;
  Sound& operator=(const Sound&) = delete;
  // Closes what is still open: a process that ends with an open device can crash.
  ~Sound() override;

  // Plays the wave in resource `name` of type "AUDIO"; returns when it has finished. Silent when
  // there is no such resource or nothing to play it on.
  void PlayResource(const wchar_t* name);

  std::wstring Send(std::wstring_view command) override;

 private:
  HINSTANCE instance_;
  bool used_ = false;
};

// The program's own alarm sound.
inline constexpr wchar_t kBellName[] = L"BELL";

}  // namespace varnel
