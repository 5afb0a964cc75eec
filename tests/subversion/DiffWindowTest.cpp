// The difference window, through SccDiff of the loaded library.

#include "Developer.h"
#include "WindowControls.h"

namespace kestrel::svnscc {

namespace {

struct DiffWindow : TTeam {
  DiffWindow() {
    ann.AddNew({"unit1.pas"}, "one\ntwo\nthree\n");
    ann.AddNew({"picture.bin"}, std::string("a\0b", 3));
  }
  scc::Long Diff(const std::string& name, scc::Long flags = 0) {
    return ann.Library()->SccDiff(ann.Context(), nullptr, ann.File(name).c_str(), flags, nullptr);
  }
  /// Shows it, and hands the window to `user`.
  scc::Long Diff(const std::string& name, scc::Long flags, const std::function<void(wxDialog&)>& user) {
    TModalScript script;
    script.Expect<wxDialog>(user);
    return Diff(name, flags);
  }
};

}  // namespace

TEST_F(DiffWindow, ShowsBothSidesAlignedAndComparesAnew) {
  ann.Edit("unit1.pas", "one\nTWO\n2\nthree\n4\n");
  EXPECT_EQ(scc::SCC_I_FILEDIFFERS, Diff("unit1.pas", 0, [](wxDialog& dialog) {
              EXPECT_EQ("one\ntwo\n\nthree\n", TextIn(dialog, "left"));
              EXPECT_EQ("one\nTWO\n2\nthree\n4", TextIn(dialog, "right"));
              EXPECT_EQ("Difference 1 of 2.", Message(dialog));
              EXPECT_FALSE(FindLabelled<wxButton>(dialog, "&Previous")->IsEnabled());
              Press(dialog, "&Next");
              EXPECT_EQ("Difference 2 of 2.", Message(dialog));
              EXPECT_EQ(4, Find<wxStyledTextCtrl>(dialog, "left")->GetCurrentLine());
              EXPECT_EQ("5 ", Find<wxStyledTextCtrl>(dialog, "right")->MarginGetText(4));
              Tick(dialog, "Ignore &case");
              EXPECT_EQ("one\ntwo\n\nthree\n", TextIn(dialog, "left"));
              EXPECT_EQ("Difference 1 of 2.", Message(dialog));
              EXPECT_EQ(2, Find<wxStyledTextCtrl>(dialog, "left")->GetCurrentLine());
            }));
  EXPECT_EQ("one\nTWO\n2\nthree\n4\n", ann.Read("unit1.pas"));
}

TEST_F(DiffWindow, ComparesAsTheClientAsks) {
  ann.Edit("unit1.pas", "ONE\nt w o\nthree\n");
  const auto boxes = [](bool upper, bool space) {
    return [=](wxDialog& dialog) {
      EXPECT_EQ(upper, FindLabelled<wxCheckBox>(dialog, "Ignore &case")->GetValue());
      EXPECT_EQ(space, FindLabelled<wxCheckBox>(dialog, "Ignore white &space")->GetValue());
    };
  };
  EXPECT_EQ(scc::SCC_I_FILEDIFFERS, Diff("unit1.pas", scc::SCC_DIFF_IGNORECASE, boxes(true, false)));
  EXPECT_EQ(scc::SCC_I_FILEDIFFERS, Diff("unit1.pas", scc::SCC_DIFF_IGNORESPACE, boxes(false, true)));
  constexpr scc::Long kBoth = scc::SCC_DIFF_IGNORECASE | scc::SCC_DIFF_IGNORESPACE;
  EXPECT_EQ(scc::SCC_OK, Diff("unit1.pas", kBoth, boxes(true, true)));
  EXPECT_EQ(scc::SCC_OK, Diff("unit1.pas", kBoth | scc::SCC_DIFF_QD_CONTENTS));
  EXPECT_EQ(scc::SCC_I_FILEDIFFERS, Diff("unit1.pas", scc::SCC_DIFF_QD_CONTENTS));
}

TEST_F(DiffWindow, ShowsWhatOthersCheckedIn) {
  Join(bob);
  bob.EditAndCheckIn("unit1.pas", "one\ntwo and a half\nthree\n");
  EXPECT_EQ(scc::SCC_I_FILEDIFFERS, Diff("unit1.pas", 0, [](wxDialog& dialog) {
              EXPECT_THAT(TextIn(dialog, "left"), HasSubstr("two and a half"));
            }));
  std::filesystem::rename(repository.Folder(), repository.Folder() + "-gone");
  EXPECT_EQ(scc::SCC_OK, Diff("unit1.pas", 0, [](wxDialog& dialog) {
              EXPECT_EQ("There are no differences.", Message(dialog));
            }));
  EXPECT_THAT(ann.Said(), HasSubstr("W The repository could not be asked"));
}

TEST_F(DiffWindow, FilesThatAreNoTextAreOnlyCompared) {
  EXPECT_EQ(scc::SCC_OK, Diff("picture.bin", 0, [](wxDialog& dialog) {
              EXPECT_EQ("The files are not text. There are no differences.", Message(dialog));
            }));
  ann.Edit("picture.bin", "text now\n");
  EXPECT_EQ(scc::SCC_I_FILEDIFFERS, Diff("picture.bin", 0, [](wxDialog& dialog) {
              EXPECT_THAT(Message(dialog), HasSubstr("3 bytes on the left, 9 bytes on the right"));
              EXPECT_EQ(nullptr, wxWindow::FindWindowByName("left", &dialog));
            }));
}

TEST_F(DiffWindow, RefusesWhatCannotBeCompared) {
  ann.Write("new.pas", "1\n");
  std::filesystem::remove(ann.File("unit1.pas"));
  EXPECT_EQ(scc::SCC_E_FILENOTEXIST, Diff("unit1.pas"));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, Diff("new.pas"));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, Diff("../elsewhere.pas"));
  EXPECT_EQ(scc::SCC_E_TYPENOTSUPPORTED, Diff(""));
}

}  // namespace kestrel::svnscc
