// What the host is asked.
#include "expert/ExpertFixture.h"
#include "expert/SccSystem.h"

namespace kestrel::addin {

TEST(HostAccess, CurrentProjectIsTheGroupsActiveOneElseTheLast) {
  TScriptedHost host;
  EXPECT_EQ(CurrentProject(), nullptr);
  auto& first = host.AddProject("/a.qvxproj", {});
  host.AddProject("/b.qvxproj", {});
  EXPECT_EQ(CurrentProject()->GetFileName(), "/b.qvxproj");
  auto& group = host.AddGroup("/g.qvxgroup", nullptr);
  EXPECT_EQ(CurrentProject()->GetFileName(), "/b.qvxproj")
      << "a group without an active project does not count";
  group.Active = &first;
  EXPECT_EQ(CurrentProject()->GetFileName(), "/a.qvxproj");
}

TEST(HostAccess, ProjectUnitsLeaveOutLibrariesAndPrograms) {
  TScriptedHost host;
  TStringList units{"kept"};
  rv_EnumProjectUnits(&units);
  EXPECT_THAT(units, ElementsAre("kept")) << "no project";
  host.AddProject("/a.qvxproj", {"/u.pas", "/x.DLL", "/tool.exe", "/r.res"});
  rv_EnumProjectUnits(&units);
  EXPECT_THAT(units, ElementsAre("/u.pas", "/r.res"));
  EXPECT_EQ(rv_GetUnitCount(), 4);
}

TEST(HostAccess, EditorsAndTheirState) {
  TScriptedHost host;
  EXPECT_FALSE(IsUnitModified("/u.pas"));
  auto& unit = host.AddUnit("/u.pas");
  unit.Editors.front().Modified = true;
  EXPECT_TRUE(IsUnitModified("/U.PAS"));

  host.TopBuffer = "/loose.txt";
  EXPECT_EQ(rv_GetCurrentFile(), "") << "shown, but not open as a module";
  host.TopBuffer = "/u.pas";
  EXPECT_EQ(rv_GetCurrentFile(), "/u.pas");

  auto& form = host.AddUnit("/f.pas");
  form.Editors.front().IsForm = true;
  EXPECT_THROW(IsUnitModified("/f.pas"), std::runtime_error);
}

}  // namespace kestrel::addin
