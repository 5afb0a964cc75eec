// Getting files that only the repository has, and the dialogs of command options: through the loaded library.
#include <wx/listctrl.h>
#include <wx/radiobut.h>
#include <wx/spinctrl.h>

#include "Developer.h"
#include "WindowControls.h"

namespace kestrel::svnscc {

namespace {

struct Picking : TTeam {
  Picking() {
    Join(bob);
    bob.AddNew({"a.pas", "b.pas", "sub/c.pas"});
  }
  static std::vector<std::string> Offered(wxDialog& dialog) {
    std::vector<std::string> names;
    auto* list = Find<wxListCtrl>(dialog, "files");
    for (int i = 0; i < list->GetItemCount(); ++i) names.push_back(list->GetItemText(i).utf8_string());
    return names;
  }
  static void CheckRow(wxDialog& dialog, long row) {
    auto* list = Find<wxListCtrl>(dialog, "files");
    wxListEvent event(wxEVT_LIST_ITEM_CHECKED, list->GetId());
    event.m_itemIndex = row;
    list->HandleWindowEvent(event);
  }
  TModalScript script;
};

}  // namespace

TEST_F(Picking, GetsTheFilesThatAreTickedAndHandsTheirNamesOut) {
  script.Expect<wxDialog>([](wxDialog& dialog) {
    EXPECT_THAT(Offered(dialog), ElementsAre("a.pas", "b.pas", "sub/c.pas"));
    EXPECT_FALSE(dialog.FindWindow(wxID_OK)->IsEnabled());
    CheckRow(dialog, 1);
    CheckRow(dialog, 2);
    dialog.SetReturnCode(wxID_OK);
  });
  scc::Long count = 0;
  const char** names = nullptr;
  ASSERT_EQ(scc::SCC_OK, ann.Library()->SccAddFromScc(ann.Context(), nullptr, &count, &names)) << ann.Said();
  EXPECT_THAT(std::vector<std::string>(names, names + count),
              ElementsAre(ann.File("b.pas"), ann.File("sub/c.pas")));
  EXPECT_TRUE(ann.Has("sub/c.pas"));
  EXPECT_FALSE(ann.Has("a.pas"));
  EXPECT_EQ(scc::SCC_OK, ann.Library()->SccAddFromScc(ann.Context(), nullptr, nullptr, &names));

  ann.GetEverything();
  script.Expect<wxDialog>([](wxDialog& dialog) {
    EXPECT_THAT(Offered(dialog), IsEmpty());
    dialog.SetReturnCode(wxID_CANCEL);
  });
  names = nullptr;
  EXPECT_EQ(scc::SCC_I_OPERATIONCANCELED,
            ann.Library()->SccAddFromScc(ann.Context(), nullptr, &count, &names));
  EXPECT_EQ(nullptr, names);
}

TEST_F(Picking, OffersWhatBelongsIntoTheClientsFolder) {
  ann.Library()->SccSetOption(ann.Context(), scc::SCC_OPT_SHARESUBPROJ, 0);
  const std::string folder = ann.File("sub");
  const char* one = folder.c_str();
  const char** names = &one;
  scc::Long count = 1;
  script.Expect<wxDialog>([](wxDialog& dialog) {
    EXPECT_THAT(Offered(dialog), ElementsAre("sub/c.pas"));
    dialog.SetReturnCode(wxID_CANCEL);
  });
  EXPECT_EQ(scc::SCC_I_OPERATIONCANCELED,
            ann.Library()->SccAddFromScc(ann.Context(), nullptr, &count, &names));
  EXPECT_EQ(&one, names);
}

// As this client does it: one variable for all commands, whose address travels.
TEST_F(Picking, PassesOptionsThroughTheClientsVariable) {
  const auto& library = ann.Library();
  void* variable = nullptr;
  const auto query = [&](scc::SCCCommand command) {
    return library->SccGetCommandOptions(ann.Context(), nullptr, command, nullptr);
  };
  /// The user sees the option as `before`, and leaves it as `after`.
  const auto choose = [&](bool before, bool after, int button = wxID_OK) {
    script.Expect<wxDialog>([=](wxDialog& dialog) {
      auto* option = Find<wxCheckBox>(dialog, "option");
      EXPECT_EQ(before, option->GetValue());
      option->SetValue(after);
      dialog.SetReturnCode(button);
    });
    return library->SccGetCommandOptions(ann.Context(), nullptr, scc::SCC_COMMAND_CHECKOUT, &variable);
  };
  const std::string file = ann.File("a.pas");
  const auto checkOut = [&] {
    const char* name = file.c_str();
    return library->SccCheckOut(ann.Context(), nullptr, 1, &name, "", 0, &variable);
  };
  for (const auto command :
       {scc::SCC_COMMAND_GET, scc::SCC_COMMAND_CHECKOUT, scc::SCC_COMMAND_CHECKIN, scc::SCC_COMMAND_ADD})
    EXPECT_EQ(scc::SCC_I_ADV_SUPPORT, query(command));
  EXPECT_EQ(scc::SCC_OK, query(scc::SCC_COMMAND_REMOVE));
  EXPECT_EQ(scc::SCC_E_OPNOTSUPPORTED,
            library->SccGetCommandOptions(ann.Context(), nullptr, scc::SCC_COMMAND_REMOVE, &variable));

  EXPECT_EQ(scc::SCC_I_OPERATIONCANCELED, choose(false, true, wxID_CANCEL));
  EXPECT_EQ(nullptr, variable);
  EXPECT_EQ(scc::SCC_OK, choose(false, true));
  void* const block = variable;
  EXPECT_EQ(scc::SCC_OK, choose(true, true));
  script.Expect<wxDialog>([](wxDialog& dialog) {
    EXPECT_FALSE(Find<wxSpinCtrl>(dialog, "revision")->IsEnabled());
    dialog.SetReturnCode(wxID_OK);
  });
  EXPECT_EQ(scc::SCC_OK,
            library->SccGetCommandOptions(ann.Context(), nullptr, scc::SCC_COMMAND_GET, &variable));
  EXPECT_EQ(block, variable);
  bob.CheckOut({"a.pas"});
  EXPECT_EQ(scc::SCC_OK, checkOut()) << ann.Said();
  EXPECT_EQ("ann", repository.LockOwner("project/a.pas"));

  // Chosen for a list that was cancelled: the next list begins without it.
  ann.Undo({"a.pas"});
  bob.CheckOut({"a.pas"});
  choose(false, true);
  ann.Populate(scc::SCC_COMMAND_CHECKOUT, {});
  EXPECT_EQ(scc::SCC_E_FILEOUTEXCLUSIVE, checkOut());
  choose(false, true);
  query(scc::SCC_COMMAND_CHECKOUT);
  EXPECT_EQ(scc::SCC_E_FILEOUTEXCLUSIVE, checkOut());
}

}  // namespace kestrel::svnscc
