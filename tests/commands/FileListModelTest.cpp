#include "expert/FileListModel.h"
#include "support/NativePath.h"
#include "support/Testing.h"

namespace kestrel::addin {

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

TEST(FileListModel, OpensWithTheFileThatIsBeingEditedTicked) {
  const struct {
    std::string Current;
    std::vector<std::string> Ticked;
  } rows[] = {
      {Native("/p/unit1.pas"), {Native("/p/unit1.pas")}},
      {Native("/P/UNIT1.PAS"), {Native("/p/unit1.pas")}},
      {Native("/p/gRÖße.pas"), {Native("/p/Größe.pas")}},
      {Native("/p/main.kfm"), {Native("/p/main.pas")}},
      {Native("/p/main.KFM"), {Native("/p/main.kfm")}},  // only the exact extension is a form's
      {Native("/q/unit1.pas"), {}},
      {"unit1.pas", {}},
      {"", {}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Current);
    auto model = ListOf(
        {Native("/p/unit1.pas"), Native("/p/main.pas"), Native("/p/main.kfm"), Native("/p/Größe.pas")});
    model.TickCurrent(row.Current);
    EXPECT_EQ(Ticked(model), row.Ticked);
  }
}

TEST(FileListModel, TicksTheOnlyFileWhateverIsEdited) {
  auto model = ListOf({Native("/p/unit1.pas")});
  model.TickCurrent(Native("/p/other.pas"));
  EXPECT_THAT(Ticked(model), ElementsAre(Native("/p/unit1.pas")));
}

TEST(FileListModel, CountsEachTickOnce) {
  EXPECT_EQ(TFileListModel().CheckState(), (TFileListModel::TButtons{false, false, false}))
      << "an empty list";
  auto model = ListOf({Native("/p/a.pas"), Native("/p/b.pas")});
  model.SetChecked(1, true);
  model.SetChecked(1, true);
  EXPECT_THAT(Ticked(model), ElementsAre(Native("/p/b.pas")));
  model.ChangeAllCheckedStates(true);
  EXPECT_THAT(Ticked(model), ElementsAre(Native("/p/a.pas"), Native("/p/b.pas")));
  model.ChangeAllCheckedStates(false);
  EXPECT_THAT(Ticked(model), IsEmpty());
}

TEST(CommentText, FitsWhatAProviderTakes) {
  const std::string x126(126, 'x'), x128(128, 'x');
  const struct {
    const char* Case;
    TCommentEdit Typed, Fitted;
  } rows[] = {
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

}  // namespace kestrel::addin
