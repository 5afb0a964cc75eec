// Texts of the isolating provider.  Arguments: the provider, the call, details.
#pragma once

#include "system/Text.h"

namespace kestrel::isolation {

inline constexpr TResString sNoProvider{
    "%s names no provider; register it again with \"scc-register isolate\"."};
inline constexpr TResString sNotStarted{"The process for %s could not be started: %s"};
inline constexpr TResString sNotLoaded{"The provider library %s could not be loaded: %s"};
inline constexpr TResString sEndedWith{"%s ended in %s: %s."};
inline constexpr TResString sEnded{"%s ended in %s."};
inline constexpr TResString sStopped{"%s was stopped in %s."};
inline constexpr TResString sInvalidAnswer{"%s was ended in %s: %s."};
inline constexpr TResString sException{"%s; %s: %s"};
inline constexpr TResString sRestartedReopened{
    "%s has ended and was started again; the project is open again."};
inline constexpr TResString sRestarted{"%s has ended and was started again."};
inline constexpr TResString sNotReopened{
    "%s has ended and was started again, but it did not open the project again (%d)."};
inline constexpr TResString sNotRestarted{
    "%s has ended again and again and is not started any more until the project is opened anew."};
inline constexpr TResString sOverrun{"%s wrote behind a buffer of %s."};

// The waiting window
inline constexpr TResString sWaiting{"Waiting for %s since %d s..."};
inline constexpr TResString sStop{"Stop"};

}  // namespace kestrel::isolation
