// What every form of the program is given: the services it may use, owned by the application.
#pragma once

#include <string>

#include "base/file_store.h"
#include "base/settings.h"
#include "base/wall_clock.h"
#include "frame/form_registry.h"
#include "frame/program.h"
#include "theme/colour.h"

namespace varnel {

class Sound;
struct Ui;

struct Services {
  Ui& ui;
  Settings& settings;
  FileStore& files;
  const WallClock& clock;
  const TimeFormatter& formatter;
  const SystemColours& colours;
  FormRegistry& forms;
  Program& program;
  Sound& sound;
  std::wstring program_folder;  // ends in "\"
};

}  // namespace varnel
