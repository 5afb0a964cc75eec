// Display names of structured exceptions.
#pragma once

#include "system/Text.h"

namespace kestrel {

inline constexpr TResString sFault{"%s (0x%s)"};
inline constexpr TResString sAccessViolation{"access violation"};
inline constexpr TResString sInPageError{"a page of memory could not be read"};
inline constexpr TResString sArrayBounds{"array bounds exceeded"};
inline constexpr TResString sMisalignment{"misaligned data"};
inline constexpr TResString sIntDivideByZero{"division by zero"};
inline constexpr TResString sIntOverflow{"integer overflow"};
inline constexpr TResString sFloatFault{"floating-point fault"};
inline constexpr TResString sIllegalInstruction{"illegal instruction"};
inline constexpr TResString sPrivilegedInstruction{"privileged instruction"};
inline constexpr TResString sStackOverflow{"stack overflow"};
inline constexpr TResString sForeignCppException{"C++ exception"};
inline constexpr TResString sOtherFault{"exception"};

}  // namespace kestrel
