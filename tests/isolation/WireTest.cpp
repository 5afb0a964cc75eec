// Frames from a process with damaged memory.

#include "isolation/Wire.h"
#include "support/Testing.h"

namespace kestrel::isolation {

using testing::IsNull;
using testing::StrEq;

namespace {

TEST(Wire, RejectsLengthsBeyondTheFrame) {
  for (const std::uint32_t length : {5U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
    const auto body = Serialize(length, std::uint32_t{0});  // a length of four bytes, followed by four bytes
    std::string text;
    std::vector<scc::Long> words;
    EXPECT_THROW(FrameReader{body}(text), WireError);
    EXPECT_THROW(FrameReader{body}(words), WireError);
  }
  scc::Long word = 0;
  EXPECT_THROW(FrameReader{"abc"}(word), WireError);
}

TEST(Wire, KeepsNullNamesAndRejectsInvalidLists) {
  NameList names;
  for (const char* name : {"a", static_cast<const char*>(nullptr), ""}) names.Add(name);
  const auto body = Serialize(names);
  NameList read;
  FrameReader{body}(read);
  EXPECT_THAT(read.Pointers(), ElementsAre(StrEq("a"), IsNull(), StrEq(""), IsNull()));
  for (std::size_t i = 0; i < body.size(); ++i) {
    auto damaged = body;
    damaged[i] = '\x7F';
    NameList list;
    try {
      FrameReader{damaged}(list);
      list.Pointers();
    } catch (const WireError&) {  // it may also be a valid list
    }
  }
}

}  // namespace

}  // namespace kestrel::isolation
