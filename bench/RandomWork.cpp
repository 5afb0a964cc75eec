// The provider's random test with seeds of one's own: random_work [first seed [seeds [steps]]].  Seeds that fail are told
// with the steps that led there; without a first seed they are new at each run.
#include "subversion/RandomWork.h"

#include <cstdio>
#include <random>
#include <string>

using namespace kestrel;
using namespace kestrel::svnscc;

int main(int argc, char** argv) {
  const auto argument = [&](int index, unsigned otherwise) {
    return argc > index ? static_cast<unsigned>(std::stoul(argv[index])) : otherwise;
  };
  const unsigned first = argument(1, std::random_device()());
  const unsigned seeds = argument(2, 100);
  int failed = 0;
  for (unsigned i = 0; i < seeds; ++i) try {
      TRandomWork(first + i).Run(static_cast<int>(argument(3, 100)));
    } catch (const std::exception& fault) {
      std::printf("%s\n", fault.what());
      ++failed;
    }
  std::printf("%d of %u seeds from %u on failed\n", failed, seeds, first);
  return failed == 0 ? 0 : 1;
}
