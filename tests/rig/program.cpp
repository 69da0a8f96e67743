#include "tests/rig/program.h"

#include <gtest/gtest.h>
#include <psapi.h>

#include <string>

#include "tests/rig/files.h"

namespace varnel::rig {
namespace {

// Whatever is put into it ends when this process does, however it ends.
UniqueKernelHandle EndingJob() {
  UniqueKernelHandle job(::CreateJobObjectW(nullptr, nullptr));
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  ::SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

}  // namespace

bool Program::Start(const std::wstring& more) {
  if (running()) return false;
  const std::wstring exe = PathFromEnvironment(L"VARNEL_EXE");
  std::wstring command = L"\"" + exe + L"\" " + root_.Arguments() + L" " + more;
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  // Under load the test platform now and then has no answer ready.
  constexpr int kMostTries = 5;
  for (int attempt = 1; !::CreateProcessW(exe.c_str(), command.data(), nullptr, nullptr, FALSE,
                                          CREATE_SUSPENDED, nullptr, nullptr, &startup, &process);
       ++attempt) {
    const DWORD error = ::GetLastError();
    if (error != ERROR_INTERNAL_ERROR || attempt == kMostTries) {
      ADD_FAILURE() << "The program cannot be started: error " << error;
      return false;
    }
    ::Sleep(500);
  }
  const UniqueKernelHandle thread(process.hThread);
  process_ = UniqueKernelHandle(process.hProcess);
  id_ = process.dwProcessId;
  killed_ = false;
  job_ = EndingJob();
  ::AssignProcessToJobObject(job_.get(), process_.get());
  if (::ResumeThread(thread.get()) == static_cast<DWORD>(-1)) {
    ADD_FAILURE() << "The program does not go on: error " << ::GetLastError();
    return false;
  }
  return true;
}

bool Program::running() const {
  return process_ && !exit_code();
}

bool Program::WaitUntilIdle(int deadline) const {
  return ::WaitForInputIdle(process_.get(), static_cast<DWORD>(deadline)) == 0;
}

std::optional<DWORD> Program::WaitForExit(int deadline) const {
  DWORD code = 0;
  if (!process_ ||
      ::WaitForSingleObject(process_.get(), static_cast<DWORD>(deadline)) != WAIT_OBJECT_0 ||
      !::GetExitCodeProcess(process_.get(), &code)) {
    return std::nullopt;
  }
  return code;
}

std::size_t Program::Memory() const {
  PROCESS_MEMORY_COUNTERS counters = {};
  ::K32GetProcessMemoryInfo(process_.get(), &counters, sizeof counters);
  return counters.WorkingSetSize;
}

void Program::Kill() {
  if (!running()) return;
  killed_ = true;
  ::TerminateProcess(process_.get(), 1);
  ::WaitForSingleObject(process_.get(), kPatience);
}

int KillsWanted(int usual) {
  wchar_t number[16] = {};
  return ::GetEnvironmentVariableW(L"VARNEL_KILLS", number, 16) ? std::stoi(number) : usual;
}

}  // namespace varnel::rig
