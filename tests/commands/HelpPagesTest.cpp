// The help pages that programs show have a page for everything that asks for help.
#include <gtest/gtest.h>

#include "toolkit/HelpWindow.h"

namespace kestrel {

namespace {

TEST(HelpPages, EachTopicHasItsPage) {
  const struct {
    const char *Topic, *Page;
  } rows[] = {{"HC_TeamAddFiles", "add-files"},
              {"HC_TeamCheckInFiles", "check-in"},
              {"HC_TeamCheckOutFiles", "check-out"},
              {"HC_TeamRemoveFiles", "remove-files"},
              {"HC_TeamUndoCheckOut", "undo-check-out"},
              {"HC_TeamCommitBrowser", "commit-browser"},
              {"HC_TeamPlaceProject", "place-project"},
              {"HC_TeamPullProject", "pull-project"},
              {"HC_TeamFileList", "file-list"},
              {"HC_TeamComments", "comments"},
              {"HC_TeamMessages", "messages"},
              {"HC_TeamInstallProvider", "installing-a-provider"},
              {"13200", "options"},
              {"25016", "messages"},
              {"", "index"}};
  for (const auto& [topic, page] : rows)
    EXPECT_EQ(HelpPageOf(HELP_FOLDER, topic), page + std::string(".html")) << topic;
  EXPECT_EQ(HelpPageOf(HELP_FOLDER, "HC_Nothing"), "");
}

}  // namespace

}  // namespace kestrel
