// Texts of the isolating provider.  What they name comes first in each: the provider, then the call.
#pragma once

#include "host/Text.h"

constexpr TResString sNoPlace{"%s names no provider; register it again with \"scc-register isolate\"."};
constexpr TResString sNotStarted{"The process for %s could not be started: %s"};
constexpr TResString sNotLoaded{"The provider library %s could not be loaded: %s"};
constexpr TResString sEndedHow{"%s ended in %s: %s."};
constexpr TResString sEnded{"%s ended in %s."};
constexpr TResString sStopped{"%s was stopped in %s."};
constexpr TResString sGarbled{"%s was ended in %s: %s."};
constexpr TResString sThrew{"%s; %s: %s"};
constexpr TResString sStartedAgain{"%s has ended and was started again; the project is open again."};
constexpr TResString sStartedAgainClosed{"%s has ended and was started again."};
constexpr TResString sNotReopened{
    "%s has ended and was started again, but it did not open the project again (%d)."};
constexpr TResString sGivenUp{
    "%s has ended again and again and is not started any more until the project is opened anew."};
constexpr TResString sWroteBehind{"%s wrote behind a buffer of %s."};

// The waiting window
constexpr TResString sWaiting{"Waiting for %s since %d s..."};
constexpr TResString sStop{"Stop"};
