// What the user has typed and not saved, before a provider works on the file.
#pragma once

#include <string>

class TSccExpert;

/// Puts what the host's editor shows of that file on disk; does nothing when the two agree.  Everything that hands a
/// file to the provider calls it first, for units, forms and projects alike.
///
/// Throws EAbort with a sentence when the host could not save the file: it must then neither be handed to the provider
/// nor reloaded.  Throws what IsUnitModified throws.
void SaveEdits(const TSccExpert& expert, const std::string& fileName);
