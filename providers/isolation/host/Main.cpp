// scc-provider-host: loads a provider and executes the calls of the isolating library, which starts this program.
#include "isolation/host/Host.h"

int main(int argc, char** argv) { return kestrel::isolation::RunHost(argc, argv); }
