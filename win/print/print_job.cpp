#include "win/print/print_job.h"

#include <deque>
#include <utility>

#include "win/system/com.h"
#include "win/system/handles.h"

namespace varnel {
namespace {

constexpr std::size_t kMostWaiting = 4;

class Lock {
 public:
  explicit Lock(SRWLOCK& lock) : lock_(lock) { ::AcquireSRWLockExclusive(&lock_); }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
  ~Lock() { ::ReleaseSRWLockExclusive(&lock_); }

 private:
  SRWLOCK& lock_;
};

PrintFault FaultOf(int result, DWORD error) {
  if (result == SP_USERABORT || error == ERROR_CANCELLED || error == ERROR_PRINT_CANCELLED) {
    return PrintFault::kCancelled;
  }
  if (result == SP_OUTOFDISK || error == ERROR_DISK_FULL || error == ERROR_HANDLE_DISK_FULL) {
    return PrintFault::kDiskFull;
  }
  return PrintFault::kStopped;
}

PrinterSide SideOf(HDC dc) {
  return {dc,
          ::GetDeviceCaps(dc, LOGPIXELSX),
          ::GetDeviceCaps(dc, LOGPIXELSY),
          {-::GetDeviceCaps(dc, PHYSICALOFFSETX), -::GetDeviceCaps(dc, PHYSICALOFFSETY)}};
}

}  // namespace

// What the job and its thread share.
class PrintJob::Work {
 public:
  Work(const PrinterChoice& printer, const std::wstring& document, const std::wstring& output)
      : printer_(printer), document_(document), output_(output) {}

  bool HasRoom() {
    const Lock lock(lock_);
    return sides_.size() < kMostWaiting && !progress_.ended;
  }
  void Add(Side side) {
    const Lock lock(lock_);
    sides_.push_back(std::move(side));
    ::WakeConditionVariable(&changed_);
  }
  void Finish() {
    const Lock lock(lock_);
    complete_ = true;
    ::WakeConditionVariable(&changed_);
  }
  void Cancel() {
    const Lock lock(lock_);
    cancelled_ = true;
    ::WakeConditionVariable(&changed_);
  }
  Progress progress() {
    const Lock lock(lock_);
    return progress_;
  }
  void End(PrintFault fault) {
    const Lock lock(lock_);
    progress_.ended = true;
    progress_.fault = fault;
    sides_.clear();
  }

  PrintFault Print() {
    const ComApartment apartment;  // pictures are read in it
    const auto* mode = printer_.mode.size() >= sizeof(DEVMODEW)
                           ? reinterpret_cast<const DEVMODEW*>(printer_.mode.data())
                           : nullptr;
    const UniqueDc dc(::CreateDCW(L"WINSPOOL", printer_.name.c_str(), nullptr, mode));
    if (!dc) return PrintFault::kNoPrinter;
    DOCINFOW about = {};
    about.cbSize = sizeof about;
    about.lpszDocName = document_.c_str();
    about.lpszOutput = output_.empty() ? nullptr : output_.c_str();
    const int started = ::StartDocW(dc.get(), &about);
    if (started <= 0) {
      const PrintFault fault = FaultOf(started, ::GetLastError());
      return fault == PrintFault::kStopped ? PrintFault::kNotStarted : fault;
    }
    const PrintFault fault = PrintSides(dc.get());
    if (fault != PrintFault::kNone) {
      ::AbortDoc(dc.get());
      return fault;
    }
    const int ended = ::EndDoc(dc.get());
    return ended > 0 ? PrintFault::kNone : FaultOf(ended, ::GetLastError());
  }

 private:
  // Waits for the next side; false when there is none to come.
  bool Take(Side& side) {
    const Lock lock(lock_);
    while (sides_.empty() && !complete_ && !cancelled_) {
      ::SleepConditionVariableSRW(&changed_, &lock_, INFINITE, 0);
    }
    if (cancelled_ || sides_.empty()) return false;
    side = std::move(sides_.front());
    sides_.pop_front();
    return true;
  }
  PrintFault PrintSides(HDC dc) {
    Side side;
    while (Take(side)) {
      int result = ::StartPage(dc);
      if (result > 0) {
        // A printer may change its mind about its paper from page to page.
        if (side) side(SideOf(dc));
        result = ::EndPage(dc);
      }
      if (result <= 0) return FaultOf(result, ::GetLastError());
      const Lock lock(lock_);
      ++progress_.sides;
    }
    const Lock lock(lock_);
    return cancelled_ ? PrintFault::kCancelled : PrintFault::kNone;
  }

  const PrinterChoice printer_;
  const std::wstring document_;
  const std::wstring output_;
  SRWLOCK lock_ = SRWLOCK_INIT;
  CONDITION_VARIABLE changed_ = CONDITION_VARIABLE_INIT;
  std::deque<Side> sides_;
  bool complete_ = false;
  bool cancelled_ = false;
  Progress progress_;
};

PrintJob::PrintJob(const PrinterChoice& printer, const std::wstring& document,
                   const std::wstring& output)
    : work_(std::make_shared<Work>(printer, document, output)) {
  auto given = std::make_unique<std::shared_ptr<Work>>(work_);
  const UniqueKernelHandle thread(::CreateThread(nullptr, 0, &Run, given.get(), 0, nullptr));
  if (thread) {
    given.release();  // the thread's now
  } else {
    work_->End(PrintFault::kNotStarted);
  }
}

PrintJob::~PrintJob() {
  work_->Cancel();
}

DWORD WINAPI PrintJob::Run(void* work) {
  const std::unique_ptr<std::shared_ptr<Work>> mine(static_cast<std::shared_ptr<Work>*>(work));
  PrintFault fault = PrintFault::kStopped;
  try {
    fault = (*mine)->Print();
  } catch (...) {
    // No memory for a page: what was started was ended with its device.
    fault = PrintFault::kStopped;
  }
  (*mine)->End(fault);
  return 0;
}

bool PrintJob::HasRoom() const {
  return work_->HasRoom();
}

void PrintJob::Add(Side side) {
  work_->Add(std::move(side));
}

void PrintJob::Finish() {
  work_->Finish();
}

void PrintJob::Cancel() {
  work_->Cancel();
}

PrintJob::Progress PrintJob::progress() const {
  return work_->progress();
}

}  // namespace varnel
