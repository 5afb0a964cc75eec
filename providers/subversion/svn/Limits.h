// How long the provider waits and remembers.  The section [subversion-scc] of Subversion's file `config` changes it.
#pragma once

#include <svn_config.h>

#include <chrono>

namespace kestrel::svnscc {

struct Limits {
  std::chrono::seconds Connect{20};  // connect-seconds: for a connection to come about
  std::chrono::seconds Silence{60};  // silence-seconds: for a server to say something
  std::chrono::seconds Remember{2};  // remember-seconds: of the repository's last answer
};

/// Throws Failure for a value that is no number.
Limits ReadLimits(svn_config_t* config);

}  // namespace kestrel::svnscc
