// The built program, started and ended by a scene.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "tests/rig/root.h"
#include "tests/rig/wait.h"
#include "win/system/handles.h"

namespace varnel::rig {

// One process of the executable that the environment variable VARNEL_EXE names, after the other.
class Program {
 public:
  // `root` must outlive it; two programs with the same root are a first and a second start.
  explicit Program(const Root& root) : root_(root) {}
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  // Ends the process if it is still there.
  ~Program() { Kill(); }

  // Starts the program in its root, with `more` at the end of its command line. Comes back at once;
  // the windows come later. False when it cannot be started or the one before is still there.
  bool Start(const std::wstring& more = L"");

  // What it was given.
  const Root& root() const { return root_; }

  // The process's number; 0 before the first start.
  DWORD id() const { return id_; }
  bool running() const;

  // Waits until the program has started up and sits waiting for messages. False when it does not.
  bool WaitUntilIdle(int deadline = kPatience) const;

  // The exit code, or nothing when the process is still there at the deadline (milliseconds).
  std::optional<DWORD> WaitForExit(int deadline = kPatience) const;
  // The exit code of a process that has ended.
  std::optional<DWORD> exit_code() const { return WaitForExit(0); }

  // The memory in use by it, in bytes.
  std::size_t Memory() const;

  // Ends the process in the middle of whatever it does, and waits for that.
  void Kill();
  // It was ended by Kill.
  bool killed() const { return killed_; }

 private:
  const Root& root_;
  UniqueKernelHandle job_;
  UniqueKernelHandle process_;
  DWORD id_ = 0;
  bool killed_ = false;
};

// How often a scene that kills the program does so: as the environment variable VARNEL_KILLS says,
// or `usual` times.
int KillsWanted(int usual);

}  // namespace varnel::rig
