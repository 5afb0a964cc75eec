// The library itself: the names it exports, clients that call it wrongly.

#include <array>
#include <cstdlib>
#include <memory>

#include "Developer.h"

namespace kestrel::svnscc {

TEST(Library, ExportsEveryEntryPointAndReportsItsCapabilities) {
  const TProviderLibrary library;
#define SCC_ENTRY(variable, name, result, arguments) EXPECT_NE(nullptr, library->variable) << name;
#include "scc/entry_points.def"
#undef SCC_ENTRY
  EXPECT_EQ(0x00010001, library->SccGetVersion());

  void* context = nullptr;
  std::array<char, SCC_NAME_SIZE> name;
  std::array<char, SCC_AUXLABEL_SIZE> label;
  std::array<Long, 3> words{};
  ASSERT_EQ(SCC_OK, library->SccInitialize(&context, nullptr, "tests", name.data(), &words[0], label.data(),
                                           &words[1], &words[2]));
  EXPECT_STREQ("Subversion", name.data());
  // All of the 1.1 API but several files in a history, shared check-outs, and storing the newest version only.
  EXPECT_EQ(0x1780FFFF, words[0]);
  for (const Long option : {SCC_OPT_EVENTQUEUE, SCC_OPT_HASCANCELMODE, SCC_OPT_SCCCHECKOUTONLY})
    EXPECT_EQ(SCC_OK, library->SccSetOption(context, option, 1));
  EXPECT_EQ(SCC_I_SHARESUBPROJOK, library->SccSetOption(context, SCC_OPT_SHARESUBPROJ, 0));
  for (const Long option : {Long{SCC_OPT_NAMECHANGEPFN}, Long{99}})
    EXPECT_EQ(SCC_E_OPNOTSUPPORTED, library->SccSetOption(context, option, 1));
  EXPECT_EQ(SCC_OK, library->SccUninitialize(context));
}

TEST(Library, ToleratesNullArguments) {
  const TTestRepository repository;
  TDeveloper ann("ann");
  const auto& library = ann.Library();
  void* const context = ann.Context();
  EXPECT_EQ(SCC_E_PROJNOTOPEN, library->SccCheckOut(context, nullptr, 0, nullptr, nullptr, 0, nullptr));
  ASSERT_EQ(SCC_OK, ann.Open(repository.Url(), "project"));
  EXPECT_EQ(SCC_OK, library->SccCheckOut(context, nullptr, 0, nullptr, nullptr, 0, nullptr));
  EXPECT_EQ(SCC_E_NONSPECIFICERROR, library->SccCheckin(context, nullptr, 1, nullptr, nullptr, 0, nullptr));
  EXPECT_EQ(SCC_E_NONSPECIFICERROR, library->SccGet(context, nullptr, -1, nullptr, 0, nullptr));
  EXPECT_EQ(SCC_OK, library->SccQueryInfo(context, 0, nullptr, nullptr));
  EXPECT_EQ(SCC_E_FILENOTCONTROLLED, library->SccDiff(context, nullptr, nullptr, 0x10, nullptr));
  EXPECT_EQ(SCC_E_INITIALIZEFAILED, library->SccCloseProject(nullptr));
  EXPECT_EQ(SCC_E_INITIALIZEFAILED,
            library->SccInitialize(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
  EXPECT_EQ(SCC_OK, library->SccUninitialize(nullptr));
}

// No toolkit runs in this process.
TEST(Library, CannotAskForAProjectWithoutWindows) {
  TDeveloper ann("ann");
  std::array<char, SCC_PRJPATH_SIZE> user{"ann"}, project{}, local{}, aux{};
  Bool isNew = -1;
  EXPECT_EQ(SCC_E_NONSPECIFICERROR,
            ann.Library()->SccGetProjPath(ann.Context(), nullptr, user.data(), project.data(), local.data(),
                                          aux.data(), 0, &isNew));
  EXPECT_STREQ("ann", user.data());
}

namespace {
std::unique_ptr<TDeveloper> late;  // goes after everything that is made while the program runs
}

TEST(Library, AllowsASessionToEndWithTheProcess) {
  const TTestRepository repository;
  const auto work = [&] {
    late = std::make_unique<TDeveloper>("ann");
    std::exit(late->Open(repository.Url(), "project") == SCC_OK ? 0 : 1);
  };
  EXPECT_EXIT(work(), testing::ExitedWithCode(0), "");
}

}  // namespace kestrel::svnscc
