#include "system/SehFrame.h"

#include <malloc.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <iterator>
#include <optional>

#include "system/windows/Api.h"
#include "system/windows/FaultStrings.h"

namespace kestrel {

namespace {

/// A call made by CallInFrame.
struct TSehCall {
  void (*Body)(void*);
  void* Data;
  std::exception_ptr Exception;
  std::optional<DWORD> Fault;
};

// Stack in bytes reserved for handling a stack overflow; with less than unwinding needs the process would end.
constexpr ULONG kSpareStack = 32 * 1024;

// Raised by GCC's runtime for a C++ exception.  One that another compiler threw this way has no exception_ptr.
constexpr DWORD kForeignGccException = 0x20474343;

struct TFaultRow {
  DWORD Code;
  TResString Name;
};
constexpr TFaultRow kFaults[] = {
    {EXCEPTION_ACCESS_VIOLATION, sAccessViolation},
    {EXCEPTION_IN_PAGE_ERROR, sInPageError},
    {EXCEPTION_ARRAY_BOUNDS_EXCEEDED, sArrayBounds},
    {EXCEPTION_DATATYPE_MISALIGNMENT, sMisalignment},
    {EXCEPTION_INT_DIVIDE_BY_ZERO, sIntDivideByZero},
    {EXCEPTION_INT_OVERFLOW, sIntOverflow},
    {EXCEPTION_FLT_DENORMAL_OPERAND, sFloatFault},
    {EXCEPTION_FLT_DIVIDE_BY_ZERO, sFloatFault},
    {EXCEPTION_FLT_INEXACT_RESULT, sFloatFault},
    {EXCEPTION_FLT_INVALID_OPERATION, sFloatFault},
    {EXCEPTION_FLT_OVERFLOW, sFloatFault},
    {EXCEPTION_FLT_STACK_CHECK, sFloatFault},
    {EXCEPTION_FLT_UNDERFLOW, sFloatFault},
    {EXCEPTION_ILLEGAL_INSTRUCTION, sIllegalInstruction},
    {EXCEPTION_PRIV_INSTRUCTION, sPrivilegedInstruction},
    {EXCEPTION_STACK_OVERFLOW, sStackOverflow},
    {kForeignGccException, sForeignCppException},
    {0xE06D7363, sForeignCppException},  // raised by another compiler's runtime
};

std::string NameOf(DWORD fault) {
  const auto row = std::ranges::find(kFaults, fault, &TFaultRow::Code);
  std::array<char, 9> digits{};
  std::snprintf(digits.data(), digits.size(), "%08lX", fault);
  return Format(sFault, {row != std::end(kFaults) ? row->Name.str() : sOtherFault.str(), digits.data()});
}

}  // namespace

extern "C" {

/// Calls function(call) in a frame that passes structured exceptions to RecordFault.  `function` must not throw C++
/// exceptions, because the frame has no unwind information for them.
void CallInFrame(void (*function)(TSehCall*), TSehCall* call);

/// Records a structured exception; returns whether CallInFrame handles it.  Runs before unwinding, after a stack overflow
/// on the last page of the stack.
int __attribute__((used)) RecordFault(const EXCEPTION_RECORD* record, TSehCall* call) {
  if (record->ExceptionCode == EXCEPTION_BREAKPOINT || record->ExceptionCode == EXCEPTION_SINGLE_STEP)
    return 0;
  call->Fault = record->ExceptionCode;
  return 1;
}

}  // extern "C"

#ifdef __x86_64__

// The system finds the frame in the image's unwind tables.  For an exception between 1 and 2 __C_specific_handler calls the
// filter, unwinds and continues at 3.  The nop keeps the return address of the call before 2.
//
//   rsp + 32: call
asm(R"(
  .text
  .globl CallInFrame
  .def CallInFrame; .scl 2; .type 32; .endef
  .seh_proc CallInFrame
CallInFrame:
  subq $56, %rsp
  .seh_stackalloc 56
  .seh_endprologue
  .seh_handler __C_specific_handler, @except
  .seh_handlerdata
  .long 1
  .rva 1f, 2f, CallInFrameFilter, 3f
  .text
  movq %rdx, 32(%rsp)
  movq %rcx, %rax
  movq %rdx, %rcx
1:
  call *%rax
  nop
2:
3:
  addq $56, %rsp
  ret
  .seh_endproc
)");

/// `frame` is CallInFrame's rsp.
extern "C" LONG __attribute__((used)) CallInFrameFilter(EXCEPTION_POINTERS* fault, char* frame) {
  TSehCall* call = *reinterpret_cast<TSehCall**>(frame + 32);
  return RecordFault(fault->ExceptionRecord, call) ? EXCEPTION_EXECUTE_HANDLER : EXCEPTION_CONTINUE_SEARCH;
}

#else

// The system finds the frame in the list that begins at fs:0.  The handler continues the search during an unwind (flags 2
// and 4) and if RecordFault returns 0.  Otherwise it unwinds the inner frames, where RtlUnwind preserves no register but
// ebp, and continues at the frame as if the call had returned.
//
//   frame +  0: next handler in the list        frame +  8: edi, esi, ebx, ebp    frame + 28: function
//   frame +  4: CallInFrameHandler              frame + 24: return address        frame + 32: call
asm(R"(
  .text
  .globl _CallInFrame
  .def _CallInFrame; .scl 2; .type 32; .endef
_CallInFrame:
  pushl %ebp
  pushl %ebx
  pushl %esi
  pushl %edi
  pushl $_CallInFrameHandler
  pushl %fs:0
  movl %esp, %fs:0
  pushl 32(%esp)
  call *32(%esp)
  addl $4, %esp
1:
  popl %fs:0
  addl $4, %esp
  popl %edi
  popl %esi
  popl %ebx
  popl %ebp
  ret

  .def _CallInFrameHandler; .scl 3; .type 32; .endef
_CallInFrameHandler:
  pushl %ebp
  movl %esp, %ebp
  movl 8(%ebp), %eax
  testb $6, 4(%eax)
  jnz 2f
  movl 12(%ebp), %ecx
  pushl 32(%ecx)
  pushl %eax
  call _RecordFault
  testl %eax, %eax
  jz 2f
  pushl $0
  pushl 8(%ebp)
  pushl $3f
  pushl 12(%ebp)
  call _RtlUnwind@16
3:
  cld
  movl 12(%ebp), %esp
  jmp 1b
2:
  movl $1, %eax
  leave
  ret
)");

#endif

namespace {

void Call(TSehCall* call) {
  try {
    call->Body(call->Data);
  } catch (...) {
    call->Exception = std::current_exception();
    if (!call->Exception) call->Fault = kForeignGccException;
  }
}

}  // namespace

std::string CallWithSehFrame(void (*body)(void* data), void* data) {
  ULONG spare = kSpareStack;
  SetThreadStackGuarantee(&spare);
  TSehCall call{body, data, {}, {}};
  CallInFrame(Call, &call);
  if (call.Exception) std::rethrow_exception(call.Exception);
  if (!call.Fault) return {};
  if (call.Fault == EXCEPTION_STACK_OVERFLOW)
    _resetstkoflw();  // otherwise the next overflow would end the process
  return NameOf(*call.Fault);
}

}  // namespace kestrel
