#include <gmock/gmock.h>

#include "expert/FileListModel.h"

using testing::ElementsAre;

namespace {

TFileListModel ListOf(const std::vector<std::string>& files) {
  TFileListModel model;
  for (const auto& file : files) model.AddFile(file, "Current");
  return model;
}

std::vector<std::string> Ticked(const TFileListModel& model) {
  std::vector<std::string> files;
  for (std::size_t i = 0; i < model.Count(); ++i)
    if (model.IsChecked(i)) files.push_back(model.GetFile(static_cast<int>(i)));
  EXPECT_EQ(files.size(), static_cast<std::size_t>(model.ItemsChecked()));
  return files;
}

TEST(FileListModel, ShowsNameAndDirectoryAndGivesTheFullPathBack) {
  const auto model = ListOf({"/p/src/unit1.pas", "/unit2.pas"});
  EXPECT_EQ(model.NameOf(0), "unit1.pas");
  EXPECT_EQ(model.DirectoryOf(0), "/p/src");
  EXPECT_EQ(model.GetFile(0), "/p/src/unit1.pas");
  EXPECT_EQ(model.GetFile(1), "/unit2.pas") << "a root keeps its delimiter";
  EXPECT_EQ(model.GetFile(-1), "");
  EXPECT_EQ(model.GetFile(2), "");
}

TEST(FileListModel, OpensWithTheFileThatIsBeingEditedTicked) {
  const struct {
    const char* Current;
    std::vector<std::string> Ticked;
  } rows[] = {
      {"/p/unit1.pas", {"/p/unit1.pas"}},
      {"/P/UNIT1.PAS", {"/p/unit1.pas"}},
      {"/p/gRÖße.pas", {"/p/Größe.pas"}},
      {"/p/main.kfm", {"/p/main.pas"}},
      {"/p/main.KFM", {"/p/main.kfm"}},  // only the exact extension is a form's
      {"/q/unit1.pas", {}},
      {"unit1.pas", {}},
      {"", {}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Current);
    auto model = ListOf({"/p/unit1.pas", "/p/main.pas", "/p/main.kfm", "/p/Größe.pas"});
    model.TickCurrent(row.Current);
    EXPECT_EQ(Ticked(model), row.Ticked);
  }
}

TEST(FileListModel, TicksTheOnlyFileWhateverIsEdited) {
  auto model = ListOf({"/p/unit1.pas"});
  model.TickCurrent("/p/other.pas");
  EXPECT_THAT(Ticked(model), ElementsAre("/p/unit1.pas"));
}

TEST(FileListModel, ButtonsFollowTheTicks) {
  EXPECT_EQ(TFileListModel().CheckState(), (TFileListModel::TButtons{false, false, false}))
      << "an empty list";
  auto model = ListOf({"/p/a.pas", "/p/b.pas"});
  EXPECT_EQ(model.CheckState(),
            (TFileListModel::TButtons{.Ok = false, .CheckAll = true, .UncheckAll = false}));
  model.SetChecked(1, true);
  model.SetChecked(1, true);
  EXPECT_EQ(model.CheckState(), (TFileListModel::TButtons{.Ok = true, .CheckAll = true, .UncheckAll = true}));
  model.SetChecked(0, true);
  EXPECT_EQ(model.CheckState(),
            (TFileListModel::TButtons{.Ok = true, .CheckAll = false, .UncheckAll = true}));
  model.SetChecked(0, false);
  EXPECT_THAT(Ticked(model), ElementsAre("/p/b.pas"));
  model.ChangeAllCheckedStates(false);
  EXPECT_THAT(Ticked(model), ElementsAre());
  model.ChangeAllCheckedStates(true);
  EXPECT_THAT(Ticked(model), ElementsAre("/p/a.pas", "/p/b.pas"));
}

TEST(CommentText, FitsWhatAProviderTakes) {
  const std::string x126(126, 'x'), x128(128, 'x');
  const struct {
    const char* Case;
    TCommentEdit Typed, Fitted;
  } rows[] = {
      {"short", {"fix", "ed"}, {"fix", "ed"}},
      {"full", {x128, ""}, {x128, ""}},
      {"one byte too many", {x128 + "y", ""}, {x128, ""}},
      {"character across the border", {x126 + "xä", ""}, {x126 + "x", ""}},
      {"character up to the border", {x126 + "ä", ""}, {x126 + "ä", ""}},
      {"typed in the middle of a full text", {"ab", x126 + "x"}, {"a", x126 + "x"}},
      {"typed in front of a full text", {"a", x128}, {"", x128}},
      {"tail too long by itself", {"", x126 + "xää"}, {"", x126 + "x"}},
      {"pasted lines", {"a\r\nb\nc\rd", "e\n"}, {"a b c d", "e "}},
      {"line breaks at the limit", {x126 + "\r\n\r\n", ""}, {x126 + "  ", ""}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Case);
    const auto fitted = FitComment(row.Typed);
    EXPECT_EQ(fitted.Before, row.Fitted.Before);
    EXPECT_EQ(fitted.After, row.Fitted.After);
  }
}

}  // namespace
