#include "provider/Fixture.h"

namespace kestrel::addin {

using ProviderProject = SessionTest;

TEST_F(ProviderProject, ChoosingAProjectBringsBackWhatTheProviderWrote) {
  session().set_ProjName("$/old");
  session().set_ProjPath("aux");
  provider->GetProjPath = {"bob", "$/new", "/elsewhere", "other aux"};
  provider->IsNew = true;

  EXPECT_EQ(session().GetProjectPath(messages, true, false), 0);
  EXPECT_THAT(messages, ElementsAre("A new project was created", "", ""));
  const ScriptedCall& call = provider->Last("SccGetProjPath");
  EXPECT_THAT((std::vector{call.User, call.ProjName, call.LocalPath, call.AuxPath}),
              ElementsAre("ann", "$/old", "/p", "aux"));
  EXPECT_TRUE(call.IsNew);
  EXPECT_FALSE(call.Allowed);
  EXPECT_EQ(call.Window, reinterpret_cast<void*>(77));
  EXPECT_THAT((std::vector{session().get_UserName(), session().get_ProjName(), session().get_LocalPath(),
                           session().get_ProjPath()}),
              ElementsAre("bob", "$/new", "/elsewhere", "other aux"));

  provider->IsNew = false;
  EXPECT_EQ(session().GetProjectPath(messages, true, true), 0);
  EXPECT_EQ(messages[0], "An existing project was selected");
  EXPECT_TRUE(provider->Last("SccGetProjPath").Allowed);
}

TEST_F(ProviderProject, OpensWithACommentAndTheTextCallback) {
  provider->OpenProject = {"ann\n[Other]", "$/p\r\nUserName=root", {}, "rewritten\r"};
  provider->Texts["SccOpenProject"] = {{scc::SCC_MSG_INFO, "welcome"}};
  EXPECT_EQ(session().OpenProject(messages), 0);
  const ScriptedCall& call = provider->Last("SccOpenProject");
  EXPECT_THAT(call.Comment, StartsWith("Project Comment; Date: "));
  EXPECT_GT(call.Comment.size(), 30u) << "no date in it";
  EXPECT_EQ(call.Flags, scc::SCC_OP_CREATEIFNEW);
  EXPECT_EQ(session().get_ProjPath(), "rewritten");
  EXPECT_EQ(session().get_ProjName(), "$/p") << "a text ends at a line break";
  EXPECT_EQ(session().get_UserName(), "ann");
  EXPECT_THAT(sink.Of(TSeverity::Info), ElementsAre("welcome"));

  EXPECT_EQ(session().OpenProject(messages), scc::SCC_E_PROJECTALREADYOPEN);
  EXPECT_THAT(messages, ElementsAre("", "", "Project already open"));
  EXPECT_TRUE(session().CloseProject(messages));
  EXPECT_FALSE(session().CloseProject(messages));
  EXPECT_EQ(messages[2], "No project is currently open");
}

TEST_F(ProviderProject, TextsOfTheProviderMayBeNullUnknownOrLate) {
  provider->Texts["SccGet"] = {
      {scc::SCC_MSG_INFO, {}}, {scc::SCC_MSG_DOCANCEL, {}}, {99, "?"}, {2, "careful"}};
  provider->Faults.LateText = true;
  session().OpenProject(messages);
  session().GetFile({"/p/a"}, messages);
  EXPECT_THAT(sink.Of(TSeverity::Warning), ElementsAre("careful"));
  EXPECT_TRUE(session().CloseProject(messages));
  list.reset();
  EXPECT_THAT(sink.Of(TSeverity::Info), ElementsAre("late", "late"));
  EXPECT_THAT(sink.Of(TSeverity::Error), IsEmpty());
}

TEST_F(ProviderProject, VersionIsMajorDotMinor) {
  provider->Version = 0x00010002;
  EXPECT_EQ(session().GetVersion(), "1.2");
  provider->Results["SccGetVersion"] = scc::SCC_E_OPNOTSUPPORTED;
  EXPECT_EQ(session().GetVersion(), "");
}

TEST_F(ProviderProject, IdentityTextsAreCutAtTheirBuffers) {
  session().set_ProjPath(std::string(299, 'x') + "\u00fc" + "tail");
  EXPECT_EQ(session().get_ProjPath(), std::string(299, 'x')) << "half a character is none";
  session().set_ProjName(std::string(400, 'x'));
  EXPECT_EQ(session().get_ProjName().size(), 260u);
  session().set_UserName(std::string("ann\0bob", 7));
  EXPECT_EQ(session().get_UserName(), "ann");
}

TEST_F(ProviderProject, ALocalPathIsRefusedRatherThanCut) {
  const std::string tooLong(261, 'x');
  EXPECT_EQ(session().OpenProject(messages, tooLong), -15) << "it is not open";
  EXPECT_EQ(messages[2],
            "\"" + tooLong +
                "\" is too long for the source code control provider: a path may have 260 bytes at most");
  session().set_LocalPath(tooLong);
  EXPECT_EQ(session().get_LocalPath(), std::string(260, 'x'));
  EXPECT_TRUE(list->SetCurrentProject(tooLong)) << "it is still the session of that path";
  EXPECT_EQ(session().GetProjectPath(messages, true, true), -15);
  EXPECT_THAT(messages[2], StartsWith("\"" + tooLong));
  EXPECT_THAT(provider->Calls, IsEmpty());
  EXPECT_EQ(session().OpenProject(messages, std::string(260, 'y')), 0);
  EXPECT_EQ(provider->Last("SccOpenProject").LocalPath, std::string(260, 'y'));
}

}  // namespace kestrel::addin
