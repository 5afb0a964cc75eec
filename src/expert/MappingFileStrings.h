// Texts of the project mapping file.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sMappingFileBinary{
    "The project mapping file %s holds binary data. It was left as it is; restore it or delete it."};
inline constexpr TResString sMappingFileEmpty{
    "The project mapping file %s names no provider: it has no section."};
inline constexpr TResString sMappingFileDamaged{
    "The project mapping file %s is damaged in line %d (\"%s\"). It was left as it is; mend that line "
    "first."};

}  // namespace kestrel::addin
