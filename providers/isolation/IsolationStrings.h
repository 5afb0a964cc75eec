// Texts of the isolating provider.  Arguments: the provider, the call, details.
#pragma once

#include "host/Text.h"

constexpr TResString sNoProvider{"%s names no provider; register it again with \"scc-register isolate\"."};
constexpr TResString sNotStarted{"The process for %s could not be started: %s"};
constexpr TResString sNotLoaded{"The provider library %s could not be loaded: %s"};
constexpr TResString sEndedWith{"%s ended in %s: %s."};
constexpr TResString sEnded{"%s ended in %s."};
constexpr TResString sStopped{"%s was stopped in %s."};
constexpr TResString sInvalidAnswer{"%s was ended in %s: %s."};
constexpr TResString sException{"%s; %s: %s"};
constexpr TResString sRestartedReopened{"%s has ended and was started again; the project is open again."};
constexpr TResString sRestarted{"%s has ended and was started again."};
constexpr TResString sNotReopened{
    "%s has ended and was started again, but it did not open the project again (%d)."};
constexpr TResString sNotRestarted{
    "%s has ended again and again and is not started any more until the project is opened anew."};
constexpr TResString sOverrun{"%s wrote behind a buffer of %s."};

// The waiting window
constexpr TResString sWaiting{"Waiting for %s since %d s..."};
constexpr TResString sStop{"Stop"};
