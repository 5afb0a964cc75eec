// The file commands from gathering to the final box.
#include "expert/CommentMemory.h"
#include "expert/ExpertFixture.h"
#include "expert/FileCommands.h"

namespace kestrel::addin {

using namespace scc;
constexpr Long kMine = SCC_STATUS_CONTROLLED | SCC_STATUS_CHECKEDOUT | SCC_STATUS_OUTBYUSER;

class FileCommand : public TExpertTest {
 protected:
  /// The provider's statuses by name, without folders; those that are not named have `others`.
  void SetStatuses(std::map<std::string, Long> statuses, Long others = 0) {
    provider_->StatusOf = [=](const std::string& file) {
      const auto found = statuses.find(ExtractFileName(file));
      return found == statuses.end() ? others : found->second;
    };
  }
};

TEST(FileCommandRules, DecideByStatusBits) {
  const struct {
    const char* Name;
    Long Status;
    std::string Allowed;
  } rows[] = {
      {"not controlled", 0, "add "},
      {"checked in", 0x1, "remove get check-out "},
      {"mine, here", kMine, "remove get check-in undo "},
      {"mine, elsewhere", 0x1001, "remove get "},
      {"another's, shared", 0x5, "remove get check-out "},
      {"another's, exclusive", 0xD, "remove get "},
      {"exclusive to nobody named", 0x9, "remove get check-out "},
      {"deleted", 0x41, "add get "},
      {"no information", -1, "add get check-in undo "},
      {"mine but not controlled", 0x1002, "undo "},
  };
  const std::pair<bool (*)(Long), std::string> rules[] = {
      {CanAdd, "add "},          {CanRemove, "remove "},      {CanGet, "get "},
      {CanCheckIn, "check-in "}, {CanCheckOut, "check-out "}, {CanUndoCheckOut, "undo "}};
  for (const auto& row : rows) {
    std::string allowed;
    for (const auto& [rule, name] : rules)
      if (rule(row.Status)) allowed += name;
    EXPECT_EQ(allowed, row.Allowed) << row.Name;
  }
}

TEST_F(FileCommand, EditedFileIsCheckedOutAtOnceWithItsCompanions) {
  auto& expert = Open();
  auto& offer = *host_.CheckOutOffer;
  EXPECT_TRUE(offer.IsOffered(units_[0]));
  EXPECT_FALSE(offer.IsOffered(At("other.pas"))) << "not in the project, and nothing is known";
  provider_->Statuses = {{units_[0], 1}, {At("unit1.kfm"), 1}, {At("unit1.kdp"), 0xD}};
  provider_->DefaultStatus = 0;
  host_.AddUnit(units_[0]);
  EXPECT_TRUE(offer.Run(units_[0])) << "without list, comment and box";
  EXPECT_THAT(GivenTo("SccCheckout"), ElementsAre(At("unit1.kfm"), units_[0]));
  EXPECT_THAT(host_.Log, ElementsAre("ReloadFile " + units_[0]));
  EXPECT_EQ(host_.States[units_[0]].Mark, TFileMark::OutToMe) << "without another query";
  EXPECT_FALSE(offer.IsOffered(units_[0])) << "it is out";

  provider_->Statuses[units_[1]] = 1;
  provider_->Results["SccCheckout"] = SCC_E_FILEOUTEXCLUSIVE;
  EXPECT_FALSE(offer.Run(units_[1]));
  EXPECT_EQ(forms_.Boxes.back().Text, "Someone else has done an exclusive checkout on this file");
  provider_->OnCall["SccHistory"] = [&](const ScriptedCall&) {
    EXPECT_FALSE(offer.IsOffered(units_[1]));
    EXPECT_FALSE(offer.Run(units_[1])) << "the provider is not called while it runs";
  };
  expert.ShowHistory(units_[1]);
  EXPECT_EQ(provider_->Count("SccCheckout"), 3);
}

TEST_F(FileCommand, OffersEligibleFilesInOrderOfGathering) {
  Open();
  SetStatuses({{"unit1.pas", 0x5}, {"unit2.pas", 0xD}, {"App.qvxproj", 1}, {"unit2.kfm", 0x41}});
  EXPECT_THAT(Offered(&TSccExpert::CheckOutFiles), ElementsAre("unit1.pas", "App.qvxproj"));
  EXPECT_THAT(Offered(&TSccExpert::CheckOutFiles, At("unit2.pas")), ElementsAre("unit2.pas"))
      << "a single file is offered whatever its status";
  EXPECT_THAT(Offered(&TSccExpert::RemoveFiles), ElementsAre("unit1.pas", "unit2.pas", "App.qvxproj"));
  // Only what is on disk can be added: the form of unit1 is, the others are not.
  EXPECT_THAT(Offered(&TSccExpert::AddFiles), ElementsAre("unit1.kfm"));
  EXPECT_THAT(Offered(&TSccExpert::CheckInFiles), IsEmpty());
  EXPECT_EQ(forms_.Boxes.back(), (TShownBox{"Check In File", "No files available", metInfo}));
}

TEST_F(FileCommand, StatusColumnShowsTheQuickDifference) {
  auto& expert = Open();
  for (const auto& [code, text] : std::map<Long, std::string>{
           {0, "Current"}, {6, "Modified"}, {-11, "Not controlled"}, {-7, "Unknown"}}) {
    provider_->Results["SccDiff"] = code;
    std::string status;
    forms_.OnFileList.push_back([&](TFileListModel& model) {
      status = model.StatusOf(0);
      return mrCancel;
    });
    EXPECT_EQ(AbortOf([&] { expert.CheckOutFiles(units_[0]); }), "User cancelled dialog");
    EXPECT_EQ(status, text);
  }
  EXPECT_EQ(provider_->Last("SccDiff").Flags, 32);
}

TEST_F(FileCommand, CommentIsOfferedUntilItIsUsedOrCleared) {
  Open();
  provider_->DefaultStatus = kMine;
  std::vector<std::string> offered;
  std::vector<std::string> recent;
  const auto run = [&](const std::string& type, int answer, Long result) {
    provider_->Results["SccCheckin"] = result;
    WillTick({"unit2.pas"});
    forms_.OnComments.push_back([&, type, answer](TCommentModel& model) {
      offered.push_back(model.Text);
      recent = model.Recent;
      model.Text = type;
      return answer;
    });
    expert_->RunCommand("%s", [&] { expert_->CheckInFiles({}); });
  };
  run("typed with care", mrCancel, SCC_OK);
  EXPECT_EQ(provider_->Count("SccCheckin"), 0);
  EXPECT_EQ(forms_.Boxes.back(), (TShownBox{"Check In File", "User cancelled dialog", metInfo}));
  EXPECT_THAT(forms_.LinesOf(mwtInfo), Contains("User cancelled dialog"));
  EXPECT_EQ(TCommentMemory(At("Other.qvxproj")).Pending(TCommentMemory::Place("2")), "") << "another project";
  run("typed with more care", mrOk, SCC_E_ACCESSFAILURE);
  expert_.reset();
  Open();  // a restart
  run("typed with more care", mrOk, SCC_OK);
  run("100 % a=b & \"c\"", mrCancel, SCC_OK);
  run("", mrCancel, SCC_OK);
  run("", mrCancel, SCC_OK);
  EXPECT_THAT(offered,
              ElementsAre("", "typed with care", "typed with more care", "", "100 % a=b & \"c\"", ""));
  EXPECT_THAT(recent, ElementsAre("typed with more care")) << "what was used, and nothing else";
}

TEST(CommentMemory, IsBounded) {
  TScriptedHost host;
  for (int i = 0; i < 150; ++i) {
    TCommentMemory memory("/p" + std::to_string(i % 25) + "/App.qvxproj");
    for (int n = 0; n < 30; ++n) {
      const auto text = std::to_string(i * 30 + n) + "\r\nmore";
      memory.RecordTyped(TCommentMemory::Place("add", text), text);
      memory.RecordUsed({}, text);
    }
    memory.Save();
  }
  EXPECT_EQ(host.Options.Values.size(), 20U);
  const TCommentMemory last("/P24/APP.qvxproj");
  EXPECT_EQ(last.Recent().size(), 10U);
  EXPECT_EQ(last.Recent().front(), "4499\r\nmore");
  EXPECT_EQ(last.Pending(TCommentMemory::Place("add", "4400\r\nMORE")), "");
  EXPECT_EQ(last.Pending(TCommentMemory::Place("add", "4499\r\nMORE")), "4499\r\nmore");
  EXPECT_THAT(TCommentMemory("/p4/App.qvxproj").Recent(), IsEmpty());
}

TEST_F(FileCommand, OneCallOnManyFilesReportsTheFilesThatTheProviderNames) {
  auto& expert = Open();
  const auto odd = folder_.Write("work/odd name.pas", "x");
  provider_->StatusOf = [&](const std::string&) { return kMine; };
  provider_->List = {{true, 1, odd}};
  provider_->Texts["SccUncheckout"] = {{SCC_MSG_INFO, "Asking the repository"},
                                       {SCC_MSG_INFO, "Reverted \"UNIT2.pas\"."},
                                       {SCC_MSG_INFO, "Reverted \"odd name.pas\"."},
                                       {SCC_MSG_WARNING, "unit2.pas: given back"},
                                       {SCC_MSG_INFO, "../work/unit1.pas: given back"}};
  WillTick({"unit1.pas", "unit2.pas", "odd name.pas"});
  expert.UndoCheckOut({});
  EXPECT_EQ(
      forms_.Progress.back(),
      "Undo Check out File(s): Waiting for the source control provider UNIT2.pas 0, name.pas 1, unit2.pas 1, "
      "../work/unit1.pas 2");
  EXPECT_THAT(forms_.LinesOf(mwtWarning), Contains("unit2.pas: given back"));
  EXPECT_THAT(forms_.LinesOf(mwtInfo), Contains("Asking the repository"));
}

TEST_F(FileCommand, CheckInIsOneCallAndTheFilesAreSavedBeforeAndReloadedAfter) {
  auto& expert = Open();
  host_.AddUnit(units_[1]);
  provider_->DefaultStatus = kMine;
  provider_->OnCall["SccCheckin"] = [](const ScriptedCall& call) {
    for (const auto& file : call.Files) SetFileAttributesOf(file, faReadOnly);
  };
  forms_.OnFileList.push_back([](TFileListModel& model) {
    EXPECT_EQ(model.Extra, TFileListModel::ExtraBox::KeepCheckedOut);
    EXPECT_TRUE(model.KeepCheckedOut);
    model.KeepCheckedOut = false;
    model.SetChecked(0, true);
    model.SetChecked(1, true);
    return mrOk;
  });
  WillComment("done");
  expert.CheckInFiles({});

  EXPECT_EQ(provider_->Count("SccCheckin"), 1);
  EXPECT_EQ(provider_->Last("SccCheckin").Comment, "done");
  EXPECT_EQ(provider_->Last("SccCheckin").Flags, 0);
  EXPECT_EQ(GetFileAttributesOf(units_[0]), faArchive);
  EXPECT_THAT(host_.Log, ElementsAre("SaveAll", "ReloadFile " + units_[1]));

  WillTick({"unit2.pas"});  // and leaves "keep checked out" ticked
  WillComment("more to come");
  expert.CheckInFiles(units_[1]);
  EXPECT_EQ(provider_->Last("SccCheckin").Flags, SCC_KEEP_CHECKEDOUT);
  EXPECT_NE(GetFileAttributesOf(units_[1]) & faReadOnly, 0U);

  provider_->Calls.clear();
  host_.SaveSucceeds = false;
  EXPECT_THAT(AbortOf([&] { expert.CheckInFiles({}); }), HasSubstr("Unkown save error."));
  EXPECT_THAT(provider_->Entries(), IsEmpty());
}

enum class TReload { Never, OnSuccess, Always };

const struct {
  void (TSccExpert::*Command)(const std::string&);
  std::string Entry;
  Long Status;
  std::string Caption, Title, TitleOfSeveral, Files, Done;
  TReload Reload;
} kCommands[] = {
    {&TSccExpert::AddFiles, "SccAdd", 0, "Add File", "Add File", "Add File", "All", "added successfully",
     TReload::Never},
    {&TSccExpert::RemoveFiles, "SccRemove", 1, "Remove File", "Remove File", "Remove File", "All",
     "removed successfully", TReload::Never},
    {&TSccExpert::GetLatestVersion, "SccGet", 1, "Get File", "Get Latest Version", "Get Latest Version",
     "Selected", "successfully retrieved", TReload::OnSuccess},
    {&TSccExpert::CheckInFiles, "SccCheckin", kMine, "Check In File", "Check In File", "Check In File(s)",
     "Selected", "checked in successfully", TReload::OnSuccess},
    {&TSccExpert::CheckOutFiles, "SccCheckout", 1, "Check Out File", "Check Out File", "Check Out File(s)",
     "Selected", "checked out successfully", TReload::Always},
    {&TSccExpert::UndoCheckOut, "SccUncheckout", kMine, "Undo Check out File", "Undo Check out File",
     "Undo Check out File(s)", "Selected", "checked back in successfully", TReload::OnSuccess},
};

TEST_F(FileCommand, ReportsAndReloadsByItsOutcome) {
  provider_->Capabilities = 0;  // a comment dialog would be unexpected
  fs::remove(At("unit1.kfm"));
  auto& expert = Open();
  host_.AddUnit(units_[1]);
  for (const auto& row : kCommands) {
    SCOPED_TRACE(row.Entry);
    SetStatuses({{"unit1.pas", row.Status}, {"unit2.pas", row.Status}}, 4);
    const auto run = [&](std::vector<std::string> names) {
      host_.Log.clear();
      forms_.Boxes.clear();
      provider_->Calls.clear();
      SetFileAttributesOf(units_[1], faReadOnly);
      WillTick(std::move(names));
      (expert.*row.Command)({});
    };
    for (const bool succeeds : {false, true}) {
      provider_->Results[row.Entry] = succeeds ? SCC_OK : SCC_E_ACCESSFAILURE;
      run({"unit2.pas"});
      EXPECT_THAT(GivenTo(row.Entry), ElementsAre(units_[1]));
      const TShownBox one{row.Title, "unit2.pas was " + row.Done, metInfo};
      EXPECT_EQ(forms_.Boxes.back() == one, succeeds);
      EXPECT_EQ(std::ranges::count(host_.Log, "ReloadFile " + units_[1]),
                row.Reload == TReload::Always || (succeeds && row.Reload == TReload::OnSuccess));
      EXPECT_EQ((GetFileAttributesOf(units_[1]) & faReadOnly) == 0, succeeds && row.Entry == "SccUncheckout");
    }
    run({"unit1.pas", "unit2.pas"});
    EXPECT_EQ(GivenTo(row.Entry), units_);
    EXPECT_EQ(forms_.Boxes.back(),
              (TShownBox{row.TitleOfSeveral, row.Files + " files were " + row.Done, metInfo}));
  }
}

TEST_F(FileCommand, TakesWhatTheEditorsShowAndLeavesOutWhatCannotBeSaved) {
  provider_->Capabilities = 0;
  auto& expert = Open();
  auto& unit1 = host_.AddUnit(units_[0]);
  unit1.Editors.emplace_back(At("unit1.kfm"), true);
  for (auto& editor : unit1.Editors) editor.Modified = true;
  host_.AddUnit(units_[1]).Editors.front().Modified = true;
  for (const auto& row : kCommands) {
    SCOPED_TRACE(row.Entry);
    provider_->StatusOf = [&](const std::string& file) { return FileExists(file) ? row.Status : Long{4}; };
    provider_->OnCall[row.Entry] = [&](const ScriptedCall& call) {
      for (const auto& file : call.Files) EXPECT_THAT(host_.Log, Contains("SaveFile " + file));
    };
    const auto run = [&](const std::string& unsavable) {
      host_.Unsavable = unsavable;
      host_.Log.clear();
      forms_.Boxes.clear();
      provider_->Calls.clear();
      WillTick({"unit1.pas", "unit2.pas"});
      (expert.*row.Command)({});
      return GivenTo(row.Entry);
    };
    EXPECT_THAT(run({}), ElementsAre(units_[0], At("unit1.kfm"), units_[1]));
    EXPECT_THAT(run(At("unit1.kfm")), ElementsAre(units_[0], units_[1]));
    EXPECT_EQ(
        forms_.Boxes.front(),
        (TShownBox{row.Caption,
                   At("unit1.kfm") + " has unsaved changes and could not be saved. Nothing was done with it.",
                   metError}));
    EXPECT_EQ(forms_.Boxes.back() == (TShownBox{"Add File", "Not all files were added", metError}),
              row.Entry == "SccAdd");
    EXPECT_THAT(host_.Log, Not(Contains("ReloadFile " + At("unit1.kfm"))));
    EXPECT_EQ(std::ranges::count(host_.Log, "ReloadFile " + units_[1]), row.Reload != TReload::Never);
    EXPECT_THAT(forms_.Boxes, Not(Contains(testing::Field(&TShownBox::Text, HasSubstr("success")))));
  }
}

TEST_F(FileCommand, CheckOutCallsFileByFileAndTheLastOneDecidesAboutTheReport) {
  auto& expert = Open();
  SetStatuses({{"unit1.pas", 1}, {"unit1.kfm", 1}, {"unit2.pas", 1}});
  const TShownBox failed{"Check Out File", "Someone else has done an exclusive checkout on this file",
                         metError};
  for (const int failing : {1, 4}) {
    int calls = 0;
    provider_->OnCall["SccCheckout"] = [&](const ScriptedCall& call) {
      EXPECT_EQ(call.Files.size(), 1U);
      EXPECT_EQ(call.Comment, "because");
      provider_->Results["SccCheckout"] = ++calls == failing ? SCC_E_FILEOUTEXCLUSIVE : SCC_OK;
    };
    forms_.Boxes.clear();
    provider_->Calls.clear();
    WillTick({"unit1.pas", "unit1.kfm", "unit2.pas"});
    WillComment("because");
    expert.CheckOutFiles("  ");
    EXPECT_THAT(GivenTo("SccCheckout"), ElementsAre(units_[0], At("unit1.kfm"), units_[1], At("unit1.kfm")))
        << "a companion that is ticked itself is checked out twice";
    EXPECT_EQ(forms_.Boxes.front(), failed);
    EXPECT_EQ(forms_.Boxes.size(), failing == 1 ? 2U : 1U) << "success is reported after the failure";
  }
}

TEST_F(FileCommand, AddAsksForACommentPerFileUntilOneAppliesToAll) {
  auto& expert = Open();
  provider_->DefaultStatus = 0;
  folder_.Write("work/unit2.kfm", "form");
  WillTick({"unit1.pas", "unit2.pas"});
  std::vector<std::string> captions;
  for (const bool all : {false, true})
    forms_.OnComments.push_back([&, all](TCommentModel& model) {
      EXPECT_TRUE(model.ShowApplyToAll);
      EXPECT_EQ(model.Text, "") << "the last file's comment is not this one's";
      captions.push_back(model.Caption);
      model.Text = "comment " + std::to_string(captions.size());
      model.ApplyToAll = all;
      return mrOk;
    });
  expert.AddFiles({});

  std::vector<std::string> comments;
  for (const auto& call : provider_->Calls)
    if (call.Entry == "SccAdd") comments.push_back(ExtractFileName(call.Files.front()) + ": " + call.Comment);
  EXPECT_THAT(captions, ElementsAre("Comments for unit1.pas", "Comments for unit1.kfm"));
  EXPECT_THAT(comments, ElementsAre("unit1.pas: comment 1", "unit1.kfm: comment 2", "unit2.pas: comment 2",
                                    "unit2.kfm: comment 2"));
  EXPECT_EQ(provider_->Last("SccAdd").Flags, SCC_KEEP_CHECKEDOUT);
  EXPECT_EQ(forms_.Boxes.back(), (TShownBox{"Add File", "All files were added successfully", metInfo}));
}

TEST_F(FileCommand, ProjectClosedWhileTheListIsOpenCallsNothing) {
  auto& expert = Open();
  forms_.OnFileList.push_back([&](TFileListModel& model) {
    host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
    host_.CloseModule(project_file_);
    model.ChangeAllCheckedStates(true);
    return mrOk;
  });
  EXPECT_EQ(AbortOf([&] { expert.CheckOutFiles({}); }), "Unable to checkout files, provider not assigned");
  EXPECT_EQ(provider_->Count("SccCheckout"), 0);
}

TEST_F(FileCommand, ProjectClosedInsideAProviderCallIsClosedAfterIt) {
  auto& expert = Open();
  bool openInside = false;
  provider_->OnCall["SccCheckout"] =
      [&](const ScriptedCall&) {  // a provider's dialog pumps the host's messages
        host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
        openInside = provider_->Open;
      };
  WillTick({"unit1.pas", "unit2.pas"});
  WillComment("x");
  expert.RunCommand("%s", [&] { expert.CheckOutFiles({}); });
  EXPECT_TRUE(openInside);
  EXPECT_FALSE(provider_->Open);
  EXPECT_EQ(provider_->Count("SccCheckout"), 1) << "the second file has no provider any more";
  EXPECT_THAT(forms_.LinesOf(mwtInfo), Contains("Unable to checkout files, provider not assigned"));
}

TEST_F(FileCommand, MoreFilesThanOneQueryCarriesAreRefused) {
  auto& expert = Open();
  for (int i = 0; i < 10000; ++i) units_.push_back(At("u" + std::to_string(i) + ".pas"));
  host_.CloseModule(project_file_);
  host_.AddProject(project_file_, units_);
  provider_->Calls.clear();
  EXPECT_THAT(AbortOf([&] { expert.RemoveFiles({}); }), HasSubstr("65"));
  EXPECT_EQ(provider_->Count("SccQueryInfo"), 0);
  expert.Menu()->Map.OnClick();
  EXPECT_FALSE(expert.Menu()->actRemoveFiles.Enabled);
  EXPECT_TRUE(expert.Menu()->actRunSccApp.Enabled) << "it needs no files";
}

TEST_F(FileCommand, ProviderWidensAndNarrowsTheList) {
  auto& expert = Open();
  provider_->List = {{false, 0, units_[0]},   {true, 1, At("server-only.pas")}, {true, 1, units_[1]},
                     {true, 1, std::nullopt}, {true, 1, At("SERVER-ONLY.pas")}, {true, 1, "  "}};
  TStringList list{units_[0]};
  expert.ProviderAddRemove(list, SCC_COMMAND_GET);
  EXPECT_THAT(list, ElementsAre(units_[0], units_[1], At("server-only.pas")));

  provider_->List = {{false, 0, units_[1]}, {true, 1, units_[1]}};
  list.clear();
  expert.ProviderAddRemove(list, SCC_COMMAND_GET);
  EXPECT_THAT(list, ElementsAre(units_[0], units_[1])) << "removed and added: present once";
}

}  // namespace kestrel::addin
