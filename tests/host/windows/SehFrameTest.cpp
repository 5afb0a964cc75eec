#include <windows.h>

#include <array>
#include <stdexcept>

#include "support/Testing.h"
#include "system/SehFrame.h"

namespace kestrel {

namespace {

volatile int* volatile nowhere = nullptr;
volatile int zero = 0;

/// More than the whole stack.
void __attribute__((noinline)) TakeTooMuchStack() {
  volatile char room[64 * 1024 * 1024];
  room[zero] = 1;
  zero = room[zero] - 1;
}

}  // namespace

TEST(SehFrame, NamesTheFaultThatEndedTheCall) {
  const struct {
    void (*Fail)();
    const char* Name;
  } rows[] = {
      {[] { *nowhere = 1; }, "access violation (0xC0000005)"},
      {[] { zero = 100 / zero; }, "division by zero (0xC0000094)"},
      {[] { __builtin_trap(); }, "illegal instruction (0xC000001D)"},
      {[] { reinterpret_cast<void (*)()>(const_cast<int*>(nowhere))(); }, "access violation (0xC0000005)"},
      {[] { RaiseException(0xE06D7363, EXCEPTION_NONCONTINUABLE, 0, nullptr); },
       "C++ exception (0xE06D7363)"},
      {[] { RaiseException(0x0EEDFADE, 0, 0, nullptr); }, "exception (0x0EEDFADE)"},
      {TakeTooMuchStack, "stack overflow (0xC00000FD)"},
      {TakeTooMuchStack, "stack overflow (0xC00000FD)"},  // the guard page is there again
      {[] {}, ""},
  };
  for (const auto& row : rows) EXPECT_EQ(CallWithSehFrame(row.Fail), row.Name);
}

TEST(SehFrame, LetsExceptionsOutAndKeepsTheRegisters) {
  // Enough that the compiler keeps some in registers across the call.
  int a = zero + 1, b = zero + 2, c = zero + 3, d = zero + 4;
  for (int i = 0; i < 3; ++i) {
    EXPECT_NE(CallWithSehFrame([] { *nowhere = 1; }), "");
    EXPECT_THROW(CallWithSehFrame([] { throw std::out_of_range("far"); }), std::out_of_range);
    a += b, b += c, c += d, d += a;
  }
  EXPECT_EQ((std::array{a, b, c, d}), (std::array{20, 26, 29, 35}));
}

TEST(SehFrame, StopsTheInnermostOfCallsInCalls) {
  std::string inner;
  const auto outer = CallWithSehFrame([&] {
    inner = CallWithSehFrame([] { *nowhere = 1; });
    RaiseException(0x0EEDFADE, 0, 0, nullptr);
  });
  EXPECT_EQ(inner, "access violation (0xC0000005)");
  EXPECT_EQ(outer, "exception (0x0EEDFADE)");
}

}  // namespace kestrel
