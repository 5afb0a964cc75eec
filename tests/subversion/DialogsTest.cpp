// The provider's dialogs, through the loaded library: choosing a project, consent, picking files, options of commands.
#include <wx/listctrl.h>
#include <wx/spinctrl.h>
#include <wx/treectrl.h>

#include <array>

#include "Developer.h"
#include "WindowControls.h"
#include "subversion/svn/Repository.h"

namespace kestrel::svnscc {

namespace {

struct ProjectDialog : testing::Test {
  TTestRepository repository;
  TDeveloper ann{"ann"};
};

struct Picking : TTeam {
  Picking() {
    Join(bob);
    bob.AddNew({"a.pas", "b.pas", "sub/c.pas"});
  }
  /// The next window offers `files`; the user ticks the rows and presses a button.
  void Pick(const NameList& files, const std::vector<long>& rows, int button) {
    script.Expect<wxDialog>([=](wxDialog& dialog) {
      auto* list = Find<wxListCtrl>(dialog, "files");
      NameList offered;
      for (int i = 0; i < list->GetItemCount(); ++i) offered.push_back(list->GetItemText(i).utf8_string());
      EXPECT_EQ(files, offered);
      EXPECT_FALSE(dialog.FindWindow(wxID_OK)->IsEnabled());
      for (const long row : rows) {
        wxListEvent event(wxEVT_LIST_ITEM_CHECKED, list->GetId());
        event.m_itemIndex = row;
        list->HandleWindowEvent(event);
      }
      dialog.SetReturnCode(button);
    });
  }
  Long AddFromScc() { return ann.Library()->SccAddFromScc(ann.Context(), nullptr, &count, &names); }
  Long count = 0;
  const char** names = nullptr;
  TModalScript script;
};

}  // namespace

// Really shown: the modal loop runs, what was bound before is connected by itself, Cancel changes nothing.
TEST_F(ProjectDialog, ShowsTheProjectThatWasBoundBefore) {
  Client client("ann");
  MakeFolder(client, UrlOf(repository.Url(), "trunk/Größe"), "");
  wxTheApp->CallAfter([&] {
    wxDialog* dialog = nullptr;
    for (wxWindow* window : wxTopLevelWindows)
      if (auto* found = dynamic_cast<wxDialog*>(window)) dialog = found;
    ASSERT_NE(nullptr, dialog);
    wxTheApp->CallAfter([dialog, this] {
      auto* tree = Find<wxTreeCtrl>(*dialog, "folders");
      EXPECT_EQ(wxString::FromUTF8("Größe"), tree->GetItemText(tree->GetSelection()));
      EXPECT_THAT(Message(*dialog), HasSubstr(repository.Url() + "/trunk/Größe"));
      EXPECT_TRUE(dialog->FindWindow(wxID_OK)->IsEnabled());
      dialog->EndModal(wxID_CANCEL);
    });
  });
  std::array<char, SCC_PRJPATH_SIZE> user{"ann"}, name{"trunk/Größe"}, local{}, aux{};
  repository.Url().copy(aux.data(), aux.size() - 1);
  ann.Folder().copy(local.data(), local.size() - 1);
  Bool mayCreate = -1;
  EXPECT_EQ(SCC_I_OPERATIONCANCELED,
            ann.Library()->SccGetProjPath(ann.Context(), nullptr, user.data(), name.data(), local.data(),
                                          aux.data(), 0, &mayCreate));
  EXPECT_STREQ("trunk/Größe", name.data());
}

// A project's mapping file comes with the project, whoever made it.
TEST_F(ProjectDialog, AsksBeforeAProjectUsesARepositoryForTheFirstTime) {
  const TTemporaryFolder elsewhere;
  const std::string url = CreateRepository(elsewhere / "repository");
  ann.Write("Flight.cdp", "[Subversion]\nProjName=trunk\nAuxProjPath=" + url + "\n");
  TModalScript script;
  const auto answer = [&](int code, const NameList& parts) {
    script.Expect<wxMessageDialog>([=](wxMessageDialog& box) {
      for (const auto& part : parts) EXPECT_THAT(box.GetMessage().utf8_string(), HasSubstr(part));
      EXPECT_NE(0, box.GetMessageDialogStyle() & wxNO_DEFAULT);
      box.SetReturnCode(code);
    });
  };
  const NameList question{ann.File("Flight.cdp"), url, "/trunk", "User name: ann",
                          "created there if it does not exist"};
  answer(wxID_NO, question);
  EXPECT_EQ(SCC_E_OPNOTPERFORMED, ann.OpenMapped(url, "trunk"));
  EXPECT_THAT(ann.Said(), HasSubstr("You chose not to use the repository"));
  EXPECT_FALSE(ann.Has(".svn"));
  EXPECT_EQ(SCC_E_OPNOTPERFORMED, ann.OpenMapped(url, "trunk", SCC_OP_SILENTOPEN)) << "asks nothing";

  answer(wxID_YES, question);
  ASSERT_EQ(SCC_OK, ann.OpenMapped(url, "trunk")) << ann.Said();
  ann.Close();
  EXPECT_EQ(SCC_OK, ann.OpenMapped(url, "trunk")) << "asked once";
  TDeveloper bob("bob"), carla("carla");
  EXPECT_EQ(SCC_OK, bob.OpenMapped(url, "trunk")) << "the same repository, from another folder";
  answer(wxID_CANCEL, {"The folder will be created there."});
  EXPECT_EQ(SCC_E_OPNOTPERFORMED, carla.OpenMapped(url, "somewhere else"));
}

TEST_F(Picking, GetsTheFilesThatAreTickedAndHandsTheirNamesOut) {
  Pick({"a.pas", "b.pas", "sub/c.pas"}, {1, 2}, wxID_OK);
  ASSERT_EQ(SCC_OK, AddFromScc()) << ann.Said();
  EXPECT_EQ(ann.Files({"b.pas", "sub/c.pas"}), NameList(names, names + count));
  EXPECT_TRUE(ann.Has("sub/c.pas"));
  EXPECT_FALSE(ann.Has("a.pas"));
  EXPECT_EQ(SCC_OK, ann.Library()->SccAddFromScc(ann.Context(), nullptr, nullptr, &names));

  ann.GetEverything();
  names = nullptr;
  Pick({}, {}, wxID_CANCEL);
  EXPECT_EQ(SCC_I_OPERATIONCANCELED, AddFromScc());
  EXPECT_EQ(nullptr, names);
}

TEST_F(Picking, OffersWhatBelongsIntoTheClientsFolder) {
  ann.Library()->SccSetOption(ann.Context(), SCC_OPT_SHARESUBPROJ, 0);
  TNamePointers folder({ann.File("sub")});
  names = folder.Data();
  count = 1;
  Pick({"sub/c.pas"}, {}, wxID_CANCEL);
  EXPECT_EQ(SCC_I_OPERATIONCANCELED, AddFromScc());
  EXPECT_EQ(folder.Data(), names);
}

// As this client does it: one variable for all commands, whose address travels.
TEST_F(Picking, PassesOptionsThroughTheClientsVariable) {
  void* variable = nullptr;
  const auto options = [&](SCCCommand command, void** place) {
    return ann.Library()->SccGetCommandOptions(ann.Context(), nullptr, command, place);
  };
  /// The user sees the option as `before`, and leaves it as `after`.
  const auto choose = [&](bool before, bool after, int button = wxID_OK) {
    script.Expect<wxDialog>([=](wxDialog& dialog) {
      auto* option = Find<wxCheckBox>(dialog, "option");
      EXPECT_EQ(before, option->GetValue());
      option->SetValue(after);
      dialog.SetReturnCode(button);
    });
    return options(SCC_COMMAND_CHECKOUT, &variable);
  };
  const auto checkOut = [&] { return ann.Run(ann.Library()->SccCheckOut, {"a.pas"}, "", 0, &variable); };
  for (const auto command : {SCC_COMMAND_GET, SCC_COMMAND_CHECKOUT, SCC_COMMAND_CHECKIN, SCC_COMMAND_ADD})
    EXPECT_EQ(SCC_I_ADV_SUPPORT, options(command, nullptr));
  EXPECT_EQ(SCC_OK, options(SCC_COMMAND_REMOVE, nullptr));
  EXPECT_EQ(SCC_E_OPNOTSUPPORTED, options(SCC_COMMAND_REMOVE, &variable));

  EXPECT_EQ(SCC_I_OPERATIONCANCELED, choose(false, true, wxID_CANCEL));
  EXPECT_EQ(nullptr, variable);
  EXPECT_EQ(SCC_OK, choose(false, true));
  void* const block = variable;
  EXPECT_EQ(SCC_OK, choose(true, true));
  script.Expect<wxDialog>([](wxDialog& dialog) {
    EXPECT_FALSE(Find<wxSpinCtrl>(dialog, "revision")->IsEnabled());
    dialog.SetReturnCode(wxID_OK);
  });
  EXPECT_EQ(SCC_OK, options(SCC_COMMAND_GET, &variable));
  EXPECT_EQ(block, variable);
  bob.CheckOut({"a.pas"});
  EXPECT_EQ(SCC_OK, checkOut()) << ann.Said();
  EXPECT_EQ("ann", repository.LockOwner("project/a.pas"));

  // Chosen for a list that was cancelled: the next list begins without it.
  ann.Undo({"a.pas"});
  bob.CheckOut({"a.pas"});
  choose(false, true);
  ann.Populate(SCC_COMMAND_CHECKOUT, {});
  EXPECT_EQ(SCC_E_FILEOUTEXCLUSIVE, checkOut());
  choose(false, true);
  options(SCC_COMMAND_CHECKOUT, nullptr);
  EXPECT_EQ(SCC_E_FILEOUTEXCLUSIVE, checkOut());
}

}  // namespace kestrel::svnscc
