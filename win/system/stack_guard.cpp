// The value that functions put before their return address to notice that it was overwritten. The
// tool chain's own start-up code asks the old cryptographic provider for it, which loads three
// libraries; the system's random generator alone is as good and at once there.
#include <windows.h>

#include <ntsecapi.h>

#include <cstdint>

extern "C" {

std::uintptr_t __stack_chk_guard = 0;

[[noreturn]] void __stack_chk_fail() {
  constexpr int kStackCookieFailed = 2;  // FAST_FAIL_STACK_COOKIE_CHECK_FAILURE
  asm volatile("int $0x29" : : "c"(kStackCookieFailed));
  __builtin_unreachable();
}

// A bounded copy was asked for more than its target holds.
[[noreturn]] void __chk_fail() {
  __stack_chk_fail();
}

// Runs before every other constructor and is not itself guarded, as it changes the value.
__attribute__((constructor(101), optimize("no-stack-protector"))) static void SetStackGuard() {
  std::uintptr_t value = 0;
  if (!::RtlGenRandom(&value, sizeof value)) {
    LARGE_INTEGER ticks = {};
    ::QueryPerformanceCounter(&ticks);
    value = static_cast<std::uintptr_t>(ticks.QuadPart) * 0x9E3779B97F4A7C15u;
  }
  __stack_chk_guard = value & ~std::uintptr_t{0xFF};  // a zero byte stops what copies texts
}
}
