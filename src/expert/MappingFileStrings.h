// Texts of the project mapping file.
#pragma once

#include "host/Text.h"

constexpr TResString sMappingFileBinary{
    "The project mapping file %s holds binary data. It was left as it is; restore it or delete it."};
constexpr TResString sMappingFileEmpty{"The project mapping file %s names no provider: it has no section."};
constexpr TResString sMappingFileDamaged{
    "The project mapping file %s is damaged in line %d (\"%s\"). It was left as it is; mend that line "
    "first."};
