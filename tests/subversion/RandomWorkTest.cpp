// Two users and plain `svn` at random: no command loses work, and every state has a way out.

#include "RandomWork.h"

namespace kestrel::svnscc {

TEST(RandomWork, LosesNoEditsAndLeavesEveryFileUsable) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    TRandomWork work(seed);
    ASSERT_NO_THROW(work.Run(100));
  }
}

}  // namespace kestrel::svnscc
