#include <limits>

#include "provider/Fixture.h"

namespace kestrel::addin {

namespace {

TStateMessages Decoded(scc::Long code) {
  TStateMessages messages{"old", "old", "old"};
  DecodeReturnCode(code, messages);
  return messages;
}

TEST(ReturnCode, MapsToItsTextAndKind) {
  EXPECT_EQ(Decoded(-29)[2], "Connection failure");
  EXPECT_EQ(Decoded(-14)[2], "The source code control system does not support this operation");
  EXPECT_EQ(Decoded(-1)[2], "Project could not be initialized");
  EXPECT_EQ(Decoded(2)[1], "Operation was cancelled");
  EXPECT_EQ(Decoded(4), Decoded(5)) << "'not affected' speaks of reloading as well";
  EXPECT_EQ(Decoded(7)[1], "Share subproject ok");
  const auto extremes = std::numeric_limits<scc::Long>();
  for (scc::Long code : {8, 100, -30, extremes.min(), extremes.max()})
    EXPECT_EQ(Decoded(code)[2], "Undefined error or warning") << code;
}

TEST(QueryStatus, WritesALinePerBit) {
  RecordingSink sink;
  DecodeQueryStatus("/src/100%s.pas", 0x1003);
  EXPECT_THAT(sink.Of(TSeverity::Info),
              ElementsAre("[100%s.pas]: Under source code control", "[100%s.pas]: Checked out by you",
                          "[100%s.pas]: Checked out to current user"));

  sink.Lines.clear();
  DecodeQueryStatus("/src/unit1.pas", -1);
  EXPECT_THAT(sink.Lines, SizeIs(14)) << "its own line and all thirteen bits";
  EXPECT_EQ(sink.Lines.front().second, "[unit1.pas]: No status information available");
}

TEST(QueryStatus, MapsToFlags) {
  const std::pair<scc::Long, TQueryStatus> rows[] = {
      {0, TQueryStatus().set(qsNotControlled)},
      {-1, TQueryStatus().set().reset(qsNotControlled)},
      {0x0001, TQueryStatus().set(qsControlled)},
      {0x1840,
       TQueryStatus().set(qsDeletedFromProject).set(qsHasBeenModified).set(qsCheckedOutToCurrentUser)},
      {0x6000, TQueryStatus()},  // bits of later versions
  };
  for (const auto& [status, flags] : rows) EXPECT_EQ(ToQueryStatus(status), flags) << status;
}

TEST(TextOut, WritesKnownKindsAndIgnoresTheRest) {
  RecordingSink sink;
  const std::pair<const char*, scc::Dword> calls[] = {{"a", 1},      {"b\r\n", 2}, {"", 3},     {nullptr, 1},
                                                      {"status", 4}, {nullptr, 5}, {"zero", 0}, {"far", ~0u}};
  for (const auto& [text, kind] : calls) EXPECT_EQ(TextOutProc(text, kind), 0);
  using Line = std::pair<TSeverity, std::string>;
  EXPECT_THAT(sink.Lines, ElementsAre(Line{TSeverity::Info, "a"}, Line{TSeverity::Warning, "b"},
                                      Line{TSeverity::Error, ""}));
}

TEST(TextOut, SurvivesAMissingAndAFailingSink) {
  struct FailingSink : RecordingSink {
    void Line(TSeverity, const std::string&) override { throw std::runtime_error("the window is gone"); }
  };
  EXPECT_EQ(TextOutProc("nobody listens", 1), 0);
  FailingSink sink;
  EXPECT_EQ(TextOutProc("somebody fails", 1), 0);
}

}  // namespace

}  // namespace kestrel::addin
