// How a sound file is played through the platform's media control strings.
#pragma once

#include <string_view>

#include "base/media_player.h"

namespace varnel {

// Closes the file played before and plays `path` in its place, from the start. Failures are silent:
// a file that is missing, unreadable or of a kind unknown to the player is not heard, nor is a path
// longer than the platform takes, which the player refuses itself. An empty path, or one with a
// quotation mark in it, which no file has and which would end the name within the command, sends
// nothing at all.
void PlayFile(MediaPlayer& player, std::wstring_view path);

}  // namespace varnel
