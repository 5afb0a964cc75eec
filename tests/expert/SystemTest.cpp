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

}  // namespace kestrel::addin
