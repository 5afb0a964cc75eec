// The file commands from gathering to the final box.
#include <map>

#include "expert/CommentMemory.h"
#include "expert/ExpertFixture.h"
#include "expert/FileCommands.h"
#include "system/System.h"

namespace kestrel::addin {

namespace {

using namespace scc;
constexpr Long kMine = SCC_STATUS_CONTROLLED | SCC_STATUS_CHECKEDOUT | SCC_STATUS_OUTBYUSER;

class FileCommand : public TExpertTest {};

TEST(FileCommandRules, DecideByStatusBits) {
  struct TRow {
    const char* Name;
    Long Status;
    bool Add, Remove, Get, CheckIn, CheckOut, Undo;
  };
  const TRow rows[] = {
      {"not controlled", 0, true, false, false, false, false, false},
      {"checked in", 0x1, false, true, true, false, true, false},
      {"mine, here", kMine, false, true, true, true, false, true},
      {"mine, elsewhere", 0x1001, false, true, true, false, false, false},
      {"another's, shared", 0x5, false, true, true, false, true, false},
      {"another's, exclusive", 0xD, false, true, true, false, false, false},
      {"exclusive to nobody named", 0x9, false, true, true, false, true, false},
      {"deleted", 0x41, true, false, true, false, false, false},
      {"no information", -1, true, false, true, true, false, true},
      {"mine but not controlled", 0x1002, false, false, false, false, false, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(CanAdd(row.Status), row.Add);
    EXPECT_EQ(CanRemove(row.Status), row.Remove);
    EXPECT_EQ(CanGet(row.Status), row.Get);
    EXPECT_EQ(CanCheckIn(row.Status), row.CheckIn);
    EXPECT_EQ(CanCheckOut(row.Status), row.CheckOut);
    EXPECT_EQ(CanUndoCheckOut(row.Status), row.Undo);
  }
}

TEST_F(FileCommand, CheckOutTakesTickedFilesWithTheirCompanionsOneByOne) {
  auto& expert = Open();
  provider_->StatusOf = [](const std::string& file) {
    const auto name = ExtractFileName(file);
    return name == "unit1.pas" || name == "unit2.pas" || name == "unit1.kfm" ? Long{1} : Long{0};
  };
  WillTick({"unit1.pas", "unit1.kfm"});
  WillComment("because");
  expert.CheckOutFiles("  ");

  std::vector<std::string> checkedOut;
  for (const auto& call : provider_->Calls) {
    if (call.Entry != "SccCheckout") continue;
    EXPECT_EQ(call.Files.size(), 1U);
    EXPECT_EQ(call.Comment, "because");
    checkedOut.push_back(ExtractFileName(call.Files.front()));
  }
  EXPECT_THAT(checkedOut, ElementsAre("unit1.pas", "unit1.kfm", "unit1.kfm"))
      << "a companion that is ticked itself goes twice";
  EXPECT_EQ(forms_.Boxes.back(),
            (TShownBox{"Check Out File(s)", "Selected files were checked out successfully", metInfo}));
}

TEST_F(FileCommand, OffersEligibleFilesInOrderOfGathering) {
  Open();
  provider_->StatusOf = [](const std::string& file) {
    const std::map<std::string, Long> statuses{
        {"unit1.pas", 0x5}, {"unit2.pas", 0xD}, {"App.qvxproj", 1}, {"unit2.kfm", 0x41}};
    const auto found = statuses.find(ExtractFileName(file));
    return found == statuses.end() ? Long{0} : found->second;
  };
  EXPECT_THAT(Offered(&TSccExpert::CheckOutFiles), ElementsAre("unit1.pas", "App.qvxproj"));
  EXPECT_THAT(Offered(&TSccExpert::CheckOutFiles, At("unit2.pas")), ElementsAre("unit2.pas"))
      << "a single file is offered whatever its status";
  EXPECT_THAT(Offered(&TSccExpert::RemoveFiles), ElementsAre("unit1.pas", "unit2.pas", "App.qvxproj"));
  // Only what is on disk can be added: the form of unit1 is, the others are not.
  EXPECT_THAT(Offered(&TSccExpert::AddFiles), ElementsAre("unit1.kfm"));
}

TEST_F(FileCommand, StatusColumnShowsTheQuickDifference) {
  auto& expert = Open();
  const std::map<Long, std::string> texts{
      {0, "Current"},         {6, "Modified"}, {-11, "Not controlled"},     {-26, "Unauthorized"},
      {-8, "Access failure"}, {-15, "Error"},  {-28, "Local file missing"}, {-7, "Unknown"}};
  for (const auto& [code, text] : texts) {
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

TEST_F(FileCommand, NothingEligibleShowsABoxAndAborts) {
  auto& expert = Open();
  provider_->DefaultStatus = 0;
  EXPECT_EQ(AbortOf([&] { expert.CheckInFiles({}); }), "No files available");
  EXPECT_EQ(forms_.Boxes.back(), (TShownBox{"Check In File", "No files available", metInfo}));
  provider_->Results["SccQueryInfo"] = SCC_E_CONNECTIONFAILURE;
  EXPECT_EQ(AbortOf([&] { expert.CheckInFiles({}); }), "No files available");
  EXPECT_THAT(forms_.LinesOf(mwtError), Contains("Check In File: Connection failure"));
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

  const auto& call = provider_->Last("SccCheckin");
  EXPECT_EQ(provider_->Count("SccCheckin"), 1);
  EXPECT_EQ(call.Comment, "done");
  EXPECT_EQ(call.Flags, 0);
  EXPECT_EQ(GetFileAttributesOf(units_[0]), faArchive);
  EXPECT_THAT(host_.Log, ElementsAre("SaveAll", "ReloadFile " + units_[1]));
  EXPECT_EQ(forms_.Boxes.back().Title, "Check In File(s)");

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

TEST_F(FileCommand, TakesWhatTheEditorsShowAndLeavesOutWhatCannotBeSaved) {
  const struct {
    void (TSccExpert::*Command)(const std::string&);
    const char* Entry;
    const char* Box;
    Long Status;
    bool Reloads;
  } rows[] = {
      {&TSccExpert::AddFiles, "SccAdd", "Add File", 0, false},
      {&TSccExpert::RemoveFiles, "SccRemove", "Remove File", 1, false},
      {&TSccExpert::GetLatestVersion, "SccGet", "Get File", 1, true},
      {&TSccExpert::CheckInFiles, "SccCheckin", "Check In File", kMine, true},
      {&TSccExpert::CheckOutFiles, "SccCheckout", "Check Out File", 1, true},
      {&TSccExpert::UndoCheckOut, "SccUncheckout", "Undo Check out File", kMine, true},
  };
  provider_->Capabilities = 0;  // a comment dialog would be unexpected
  auto& expert = Open();
  auto& unit1 = host_.AddUnit(units_[0]);
  unit1.Editors.emplace_back(At("unit1.kfm"), true);
  for (auto& editor : unit1.Editors) editor.Modified = true;
  host_.AddUnit(units_[1]).Editors.front().Modified = true;
  for (const auto& row : rows) {
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
      std::vector<std::string> given;
      for (const auto& call : provider_->Calls)
        if (call.Entry == row.Entry) given.insert(given.end(), call.Files.begin(), call.Files.end());
      return given;
    };
    EXPECT_THAT(run({}), ElementsAre(units_[0], At("unit1.kfm"), units_[1]));
    EXPECT_THAT(run(At("unit1.kfm")), ElementsAre(units_[0], units_[1]));
    EXPECT_EQ(
        forms_.Boxes.front(),
        (TShownBox{row.Box,
                   At("unit1.kfm") + " has unsaved changes and could not be saved. Nothing was done with it.",
                   metError}));
    EXPECT_EQ(forms_.Boxes.back() == (TShownBox{"Add File", "Not all files were added", metError}),
              row.Entry == std::string("SccAdd"));
    EXPECT_THAT(host_.Log, Not(Contains("ReloadFile " + At("unit1.kfm"))));
    EXPECT_EQ(std::ranges::count(host_.Log, "ReloadFile " + units_[1]), row.Reloads);
    EXPECT_THAT(forms_.Boxes, Not(Contains(testing::Field(&TShownBox::Text, HasSubstr("success")))));
  }
}

TEST_F(FileCommand, OnlyTheLastCheckOutDecidesAboutTheReport) {
  auto& expert = Open();
  host_.AddUnit(units_[1]);
  int calls = 0;
  const auto failOn = [&](int which) {
    calls = 0;
    provider_->OnCall["SccCheckout"] = [&, which](const ScriptedCall&) {
      provider_->Results["SccCheckout"] = ++calls == which ? SCC_E_FILEOUTEXCLUSIVE : SCC_OK;
    };
    forms_.Boxes.clear();
    provider_->StatusOf = [&](const std::string& file) { return Long{std::ranges::count(units_, file) > 0}; };
    WillTick({"unit1.pas", "unit2.pas"});
    WillComment("x");
    expert.CheckOutFiles({});
  };
  failOn(1);
  EXPECT_THAT(
      forms_.Boxes,
      ElementsAre(
          TShownBox{"Check Out File", "Someone else has done an exclusive checkout on this file", metError},
          TShownBox{"Check Out File(s)", "Selected files were checked out successfully", metInfo}));
  failOn(2);
  EXPECT_THAT(forms_.Boxes,
              ElementsAre(TShownBox{"Check Out File",
                                    "Someone else has done an exclusive checkout on this file", metError}));
  EXPECT_THAT(host_.Log, ElementsAre("ReloadFile " + units_[1], "ReloadFile " + units_[1]))
      << "also after a failure: the provider may have updated the file";
}

TEST_F(FileCommand, AddAsksPerFileUntilTheCommentIsToldToServeAll) {
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

TEST_F(FileCommand, BatchCommandsReportAndReloadOnlyOnSuccess) {
  struct TRow {
    void (TSccExpert::*Command)(const std::string&);
    const char* Entry;
    TShownBox One, Several;
    bool Reloads, MakesWritable;
  };
  const TRow rows[] = {
      {&TSccExpert::RemoveFiles,
       "SccRemove",
       {"Remove File", "unit2.pas was removed successfully", metInfo},
       {"Remove File", "All files were removed successfully", metInfo},
       false,
       false},
      {&TSccExpert::GetLatestVersion,
       "SccGet",
       {"Get Latest Version", "unit2.pas was successfully retrieved", metInfo},
       {"Get Latest Version", "Selected files were successfully retrieved", metInfo},
       true,
       false},
      {&TSccExpert::UndoCheckOut,
       "SccUncheckout",
       {"Undo Check out File", "unit2.pas was checked back in successfully", metInfo},
       {"Undo Check out File(s)", "Selected files were checked back in successfully", metInfo},
       true,
       true},
  };
  auto& expert = Open();
  host_.AddUnit(units_[1]);
  provider_->StatusOf = [&](const std::string& file) {
    return std::ranges::count(units_, file) > 0 ? kMine : Long{0};
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Entry);
    for (const bool succeeds : {false, true}) {
      provider_->Results[row.Entry] = succeeds ? SCC_OK : SCC_E_ACCESSFAILURE;
      host_.Log.clear();
      forms_.Boxes.clear();
      SetFileAttributesOf(units_[1], faReadOnly);
      WillTick({"unit2.pas"});
      (expert.*row.Command)({});
      EXPECT_EQ(provider_->Last(row.Entry).Files, std::vector{units_[1]});
      EXPECT_EQ(forms_.Boxes.size(), 1U);
      EXPECT_EQ(forms_.Boxes.back() == row.One, succeeds);
      EXPECT_EQ(!host_.Log.empty(), succeeds && row.Reloads);
      EXPECT_EQ((GetFileAttributesOf(units_[1]) & faReadOnly) == 0, succeeds && row.MakesWritable);
    }
    WillTick({"unit1.pas", "unit2.pas"});
    (expert.*row.Command)({});
    EXPECT_EQ(provider_->Last(row.Entry).Files, units_);
    EXPECT_EQ(forms_.Boxes.back(), row.Several);
  }
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

}  // namespace

}  // namespace kestrel::addin
