#include "subversion/svn/Limits.h"

#include "subversion/svn/SvnHandles.h"

namespace kestrel::svnscc {
namespace {

void Read(svn_config_t* config, const char* option, std::chrono::seconds& limit) {
  apr_int64_t value = 0;
  Check(svn_config_get_int64(config, &value, "subversion-scc", option, limit.count()));
  limit = std::chrono::seconds(value);
}

}  // namespace

Limits ReadLimits(svn_config_t* config) {
  Limits limits;
  Read(config, "connect-seconds", limits.Connect);
  Read(config, "silence-seconds", limits.Silence);
  Read(config, "remember-seconds", limits.Remember);
  return limits;
}

}  // namespace kestrel::svnscc
