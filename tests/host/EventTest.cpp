
#include "host/Event.h"
#include "support/Testing.h"

namespace kestrel {

TEST(Event, HandlersMayUnsubscribeThemselvesAndLaterOnesAndSubscribeWhileItFires) {
  TEvent<> event;
  std::vector<std::string> heard;
  int self = 0;
  int later = 0;
  self = event.Subscribe([&, owned = std::string("a text too long to be kept inside the handler itself")] {
    event.Unsubscribe(self);
    event.Unsubscribe(later);
    event.Subscribe([&] { heard.push_back("new"); });
    heard.push_back(owned.substr(0, 6));
  });
  later = event.Subscribe([&] { heard.push_back("later"); });

  event.Fire();
  EXPECT_THAT(heard, ElementsAre("a text")) << "one that was just unsubscribed or subscribed is not called";
  event.Fire();
  EXPECT_THAT(heard, ElementsAre("a text", "new"));
}

}  // namespace kestrel
