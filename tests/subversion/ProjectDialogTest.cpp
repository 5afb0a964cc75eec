// The project dialog as a client gets it: through SccGetProjPath of the loaded library.
#include <wx/treectrl.h>

#include <array>

#include "Developer.h"
#include "WindowControls.h"
#include "subversion/svn/Repository.h"

namespace kestrel::svnscc {

namespace {

/// What SccGetProjPath was given and gave back.
struct TAnswer {
  scc::Long Result;
  std::string Project;
};

wxButton* Ok(wxDialog& dialog) { return dynamic_cast<wxButton*>(dialog.FindWindow(wxID_OK)); }

struct ProjectDialog : testing::Test {
  ProjectDialog() {
    svnscc::Client client("ann");
    svnscc::MakeFolder(client, svnscc::UrlOf(repository.Url(), "trunk/Größe"), "");
  }
  TAnswer Ask(bool mayCreate, const std::string& project = "", const std::string& url = "") {
    std::array<char, 33> user{"ann"};
    std::array<char, 261> name{}, local{};
    std::array<char, 301> aux{};
    project.copy(name.data(), name.size() - 1);
    url.copy(aux.data(), aux.size() - 1);
    ann.Folder().copy(local.data(), local.size() - 1);
    scc::Bool isNew = mayCreate ? -1 : 0;
    const scc::Long result = ann.Library()->SccGetProjPath(ann.Context(), nullptr, user.data(), name.data(),
                                                           local.data(), aux.data(), 0, &isNew);
    return {result, name.data()};
  }
  TTestRepository repository;
  TDeveloper ann{"ann"};
};

}  // namespace

// Really shown: the modal loop runs, what was bound before is connected by itself, Cancel changes nothing.
TEST_F(ProjectDialog, ShowsTheProjectThatWasBoundBefore) {
  wxTheApp->CallAfter([&] {
    wxDialog* dialog = nullptr;
    for (wxWindow* window : wxTopLevelWindows)
      if (auto* found = dynamic_cast<wxDialog*>(window)) dialog = found;
    ASSERT_NE(nullptr, dialog);
    wxTheApp->CallAfter([dialog, this] {
      auto* tree = Find<wxTreeCtrl>(*dialog, "folders");
      EXPECT_EQ(wxString::FromUTF8("Größe"), tree->GetItemText(tree->GetSelection()));
      EXPECT_THAT(Message(*dialog), HasSubstr(repository.Url() + "/trunk/Größe"));
      EXPECT_TRUE(Ok(*dialog)->IsEnabled());
      dialog->EndModal(wxID_CANCEL);
    });
  });
  const TAnswer answer = Ask(true, "trunk/Größe", repository.Url());
  EXPECT_EQ(scc::SCC_I_OPERATIONCANCELED, answer.Result);
  EXPECT_EQ("trunk/Größe", answer.Project);
}

// A project's mapping file comes with the project, whoever made it.
TEST_F(ProjectDialog, AsksBeforeAProjectUsesARepositoryForTheFirstTime) {
  const TTemporaryFolder elsewhere;
  const std::string url = svnscc::CreateRepository(elsewhere / "repository");
  ann.Write("Flight.cdp", "[Subversion]\nProjName=trunk\nAuxProjPath=" + url + "\n");
  TModalScript script;
  const auto answer = [&](int code, const char* expected) {
    script.Expect<wxMessageDialog>([=, this](wxMessageDialog& box) {
      const std::string text = box.GetMessage().utf8_string();
      for (const std::string& part : {ann.File("Flight.cdp"), url, std::string("/trunk"),
                                      std::string("User name: ann"), std::string(expected)})
        EXPECT_THAT(text, HasSubstr(part));
      EXPECT_NE(0, box.GetMessageDialogStyle() & wxNO_DEFAULT);
      box.SetReturnCode(code);
    });
  };
  answer(wxID_NO, "created there if it does not exist");
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, ann.OpenMapped(url, "trunk"));
  EXPECT_THAT(ann.Said(), HasSubstr("You chose not to use the repository"));
  EXPECT_FALSE(std::filesystem::exists(ann.File(".svn")));
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, ann.OpenMapped(url, "trunk", scc::SCC_OP_SILENTOPEN))
      << "asks nothing";

  answer(wxID_YES, "created there if it does not exist");
  ASSERT_EQ(scc::SCC_OK, ann.OpenMapped(url, "trunk")) << ann.Said();
  ann.Close();
  EXPECT_EQ(scc::SCC_OK, ann.OpenMapped(url, "trunk")) << "asked once";
  TDeveloper bob("bob");
  EXPECT_EQ(scc::SCC_OK, bob.OpenMapped(url, "trunk")) << "the same repository, from another folder";
  script.Expect<wxMessageDialog>([](wxMessageDialog& box) {
    EXPECT_THAT(box.GetMessage().utf8_string(), HasSubstr("The folder will be created there."));
    box.SetReturnCode(wxID_CANCEL);
  });
  TDeveloper carla("carla");
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, carla.OpenMapped(url, "somewhere else"));
}

}  // namespace kestrel::svnscc
