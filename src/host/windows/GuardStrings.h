// What a fault is called.
#pragma once

#include "host/Text.h"

constexpr TResString sFault{"%s (0x%s)"};
constexpr TResString sAccessViolation{"access violation"};
constexpr TResString sInPageError{"a page of memory could not be read"};
constexpr TResString sArrayBounds{"array bounds exceeded"};
constexpr TResString sMisalignment{"misaligned data"};
constexpr TResString sIntDivideByZero{"division by zero"};
constexpr TResString sIntOverflow{"integer overflow"};
constexpr TResString sFloatFault{"floating-point fault"};
constexpr TResString sIllegalInstruction{"illegal instruction"};
constexpr TResString sPrivilegedInstruction{"privileged instruction"};
constexpr TResString sStackOverflow{"stack overflow"};
constexpr TResString sForeignCppException{"C++ exception"};
constexpr TResString sOtherFault{"exception"};
