#pragma once

#include "system/Text.h"

namespace kestrel {

inline constexpr TResString sOtherMachine{"it is a %s library; this is a %s program"};
inline constexpr TResString sNotLoadableImage{
    "it, or a library that it needs, is damaged or no library for a %s program"};
inline constexpr TResString sLacksLibrary{
    "a library that it needs is neither in its folder nor in the system's; PATH is searched only for "
    "providers that were registered with --search-path"};
inline constexpr TResString sLacksLibraryInPath{
    "a library that it needs is neither in its folder nor in the system's nor in one that PATH names"};

}  // namespace kestrel
