// SimpleIni as this project uses it: 8-bit text that goes through unchanged.
#pragma once

#define SI_NO_CONVERSION
// Debian's header holds the code of the templates only for who asks for it.
#ifndef SI_IMPLEMENTATION
#define SI_IMPLEMENTATION
#endif
#include <SimpleIni.h>
