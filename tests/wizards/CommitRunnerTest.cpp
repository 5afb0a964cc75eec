// How the commit browser carries out its rows.
#include "expert/ExpertFixture.h"
#include "wizards/CommitRunner.h"

namespace kestrel::addin {

using namespace scc;

struct TSteps final : IProgress {
  explicit TSteps(std::vector<std::string>& seen) : Seen(seen) {}
  void Step(std::size_t done, const std::string& what) override {
    Seen.push_back(std::to_string(done) + " " + ExtractFileName(what));
  }
  std::vector<std::string>& Seen;
};

class CommitRunner : public TExpertTest {
 protected:
  TCommitRowData Row(const std::string& name, TCommitActivity activity,
                     const std::string& comment = {}) const {
    return {activity, "state", At(name), comment};
  }
  /// The summary that the run ends with.
  std::string Summary(const std::vector<TCommitRowData>& rows, const TCommitComments& comments = {}) {
    forms_.Boxes.clear();
    RunCommit(expert_->Context(), rows, comments, std::make_unique<TSteps>(steps_));
    if (forms_.Boxes.size() != 1) return "(" + std::to_string(forms_.Boxes.size()) + " boxes)";
    EXPECT_EQ(forms_.Boxes.front().Title, "Commit Borwser");
    EXPECT_EQ(forms_.Boxes.front().Kind, metInfo);
    return forms_.Boxes.front().Text;
  }
  bool Writable(const std::string& name) const { return GetFileAttributesOf(At(name)) == faArchive; }

  std::vector<std::string> steps_;
};

TEST_F(CommitRunner, CarriesOutEachRowInOrderAndReportsIt) {
  const std::vector<TCommitRowData> rows = {
      Row("a.pas", caCommit, "mine"), Row("sub/b.pas", caNone, "ignored"), Row("c.pas", caCheckout, "why"),
      Row("d.pas", caUndo),           Row("e.pas", caAdd, "new"),          Row("f.pas", caRemove),
      Row("g.pas", caGetLatest),
  };
  for (const auto& row : rows) {
    folder_.Write("work/" + RelativePath(At(""), row.FileName), "x");
    SetFileAttributesOf(row.FileName, faReadOnly);
    host_.AddUnit(row.FileName);
  }
  Open();
  provider_->Calls.clear();
  host_.Log.clear();

  EXPECT_THAT(Summary(rows),
              HasSubstr("\r\n + No Action " + Native("sub/b.pas") + "\r\n + Checking out c.pas: "));
  const struct {
    const char *Entry, *File, *Comment;
  } calls[] = {{"SccCheckin", "a.pas", "mine"},          {"SccCheckout", "c.pas", "why"},
               {"SccUncheckout", "d.pas", ""},           {"SccAdd", "e.pas", "new"},
               {"SccRemove", "f.pas", "File Removed: "}, {"SccGet", "g.pas", ""}};
  ASSERT_EQ(provider_->Calls.size(), std::size(calls));
  for (std::size_t i = 0; i < std::size(calls); ++i) {
    const auto& call = provider_->Calls[i];
    EXPECT_EQ(call.Entry, calls[i].Entry);
    EXPECT_THAT(call.Files, ElementsAre(At(calls[i].File)));
    EXPECT_THAT(call.Comment, StartsWith(calls[i].Comment));
    EXPECT_EQ(call.Flags, 0);
  }
  EXPECT_THAT(host_.Log, ElementsAre("ReloadFile " + At("a.pas"), "ReloadFile " + At("c.pas"),
                                     "ReloadFile " + At("d.pas"), "ReloadFile " + At("g.pas")));
  for (const auto& row : rows) EXPECT_EQ(GetFileAttributesOf(row.FileName), faArchive) << row.FileName;
  EXPECT_THAT(steps_,
              ElementsAre("0 a.pas", "1 b.pas", "2 c.pas", "3 d.pas", "4 e.pas", "5 f.pas", "6 g.pas"));
}

TEST_F(CommitRunner, AFailureMarksOnlyItsRow) {
  Open();
  provider_->Results["SccCheckin"] = SCC_E_CHECKINCONFLICT;
  provider_->Results["SccGet"] = SCC_I_OPERATIONCANCELED;
  provider_->Faults.ThrowException = {"SccAdd"};
  SetFileAttributesOf(At("unit1.pas"), faReadOnly);
  host_.AddUnit(At("unit1.pas"));
  EXPECT_EQ(Summary({Row("unit1.pas", caCommit), Row("gone.pas", caGetLatest), Row("unit1.kfm", caAdd),
                     Row("unit2.pas", caUndo)}),
            "Processing Project Files\r\n"
            "\r\n + Commiting unit1.pas: Failed"
            "\r\n + Getting Latest gone.pas: Failed"
            "\r\n + Adding unit1.kfm: Failed"
            "\r\n + Undoing checkout on unit2.pas: Succeeded");
  EXPECT_THAT(host_.Log, Not(Contains("ReloadFile " + At("unit1.pas"))));
  EXPECT_TRUE(Writable("unit1.pas"));
  EXPECT_THAT(forms_.LinesOf(mwtError),
              ElementsAre(StartsWith(At("unit1.pas") + ": "), At("gone.pas") + ": Operation was cancelled",
                          AllOf(StartsWith(At("unit1.kfm")), HasSubstr("SccAdd"))));
}

TEST_F(CommitRunner, TakesWhatTheEditorShowsAndKeepsWhatCannotBeSaved) {
  std::vector<TCommitRowData> rows;
  for (int activity = caNone; activity < kCommitActivities; ++activity) {
    rows.push_back(Row("file" + std::to_string(activity) + (activity % 2 ? ".kfm" : ".pas"),
                       static_cast<TCommitActivity>(activity)));
    host_.AddUnit(rows.back().FileName).Editors.front().Modified = true;
  }
  Open();
  for (const char* entry : {"SccCheckin", "SccCheckout", "SccUncheckout", "SccAdd", "SccRemove", "SccGet"})
    provider_->OnCall[entry] = [this](const ScriptedCall& call) {
      EXPECT_EQ(host_.Log.back(), "SaveFile " + call.Files[0]);
    };
  host_.Unsavable = At("file1.kfm");
  EXPECT_THAT(Summary(rows), HasSubstr("Commiting file1.kfm: Failed"));
  EXPECT_EQ(provider_->Count("SccCheckin"), 0);
  EXPECT_EQ(provider_->Count("SccAdd"), 1);
  EXPECT_THAT(host_.Log, Not(Contains("ReloadFile " + At("file1.kfm"))));
  EXPECT_THAT(host_.Log, Contains("ReloadFile " + At("file2.pas")));
  EXPECT_THAT(host_.Log, Not(Contains("SaveFile " + At("file0.pas")))) << "nothing is done with it";
  EXPECT_THAT(forms_.LinesOf(mwtError), ElementsAre(HasSubstr("could not be saved")));

  host_.ReloadError = "the editor is gone";
  EXPECT_THAT(Summary(rows), HasSubstr("Getting Latest file6.pas: Succeeded"));
  EXPECT_THAT(forms_.LinesOf(mwtError), Contains("ReloadFiles; the editor is gone"));
}

TEST_F(CommitRunner, IsRefusedWithoutAProviderProjectBeforeAnythingIsTouched) {
  auto& expert = Start();
  SetFileAttributesOf(At("unit1.pas"), faReadOnly);
  const auto run = [&] {
    RunCommit(expert.Context(), {Row("unit1.pas", caNone)}, {}, std::make_unique<TSteps>(steps_));
  };
  const auto gather = [&] { GatherCommitRows(expert.Context()); };
  EXPECT_EQ(AbortOf(run), "Unable to run Commit Browser, provider not assigned");
  EXPECT_EQ(AbortOf(gather), "Unable to run Commit Browser, provider not assigned");
  ASSERT_TRUE(expert.ProviderCreate(0));
  EXPECT_EQ(AbortOf(run), "Unable to set current project, no matching path");
  EXPECT_EQ(AbortOf(gather), "Unable to set current project, no matching path");
  EXPECT_FALSE(Writable("unit1.pas"));
  EXPECT_THAT(steps_, IsEmpty());
}

TEST_F(CommitRunner, AProjectThatTheHostClosesMeanwhileFailsTheRowsThatAreLeft) {
  Open();
  provider_->OnCall["SccCheckin"] = [this](const ScriptedCall&) {
    host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
  };
  EXPECT_EQ(Summary({Row("unit1.pas", caCommit), Row("unit2.pas", caCommit)}),
            "Processing Project Files\r\n"
            "\r\n + Commiting unit1.pas: Succeeded"
            "\r\n + Commiting unit2.pas: Failed");
}

}  // namespace kestrel::addin
