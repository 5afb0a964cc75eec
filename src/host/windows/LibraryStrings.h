#pragma once

#include "host/Text.h"

constexpr TResString sOtherMachine{"it is a %s library; this is a %s program"};
constexpr TResString sNotLoadableImage{
    "it, or a library that it needs, is damaged or no library for a %s program"};
constexpr TResString sLacksLibrary{
    "a library that it needs is neither in its folder nor in the system's; PATH is searched only for "
    "providers that were registered with --search-path"};
constexpr TResString sLacksLibraryInPath{
    "a library that it needs is neither in its folder nor in the system's nor in one that PATH names"};
