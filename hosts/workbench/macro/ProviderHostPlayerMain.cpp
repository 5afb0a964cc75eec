// scc-provider-host-player: scc-provider-host whose windows the macro player can operate.  Not installed.
#include <cstdlib>

#include "isolation/host/Host.h"
#include "workbench/macro/ProviderWindowServer.h"
#include "workbench/macro/ProviderWindows.h"

using namespace kestrel;
using namespace kestrel::workbench;

namespace {

std::unique_ptr<wxEvtHandler> MakePlayer() {
  const char* folder = std::getenv(kExchangeFolder);
  return folder ? std::make_unique<TProviderWindowServer>(folder) : nullptr;
}

}  // namespace

int main(int argc, char** argv) { return isolation::RunHost(argc, argv, MakePlayer); }
