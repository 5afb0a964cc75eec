// Which provider, library and user: registry, user's settings and mapping file.
#include "expert/ExpertFixture.h"

namespace kestrel::addin {

class Settings : public TExpertTest {};

TEST_F(Settings, EmptyOptionsAreFilledFromTheMachine) {
  auto& expert = Start();
  EXPECT_EQ(expert.ProviderName(), kScripted);
  EXPECT_EQ(expert.ProviderPath(), ScriptedProviderLibrary::Path());
  EXPECT_EQ(host_.Options.Values["SCCProvider"], kScripted);
  EXPECT_FALSE(expert.UserName().empty());
  EXPECT_EQ(host_.Options.Values["UserName"], expert.UserName());
  EXPECT_EQ(host_.Options.Saves, 1);
}

TEST_F(Settings, DefaultIsFoundByItsKeyIgnoringCase) {
  WriteValue(kProviderKey, kProviderRegKey, "SOFTWARE\\SCRIPTED");
  EXPECT_EQ(Start().ProviderName(), kScripted);
  WriteValue(kProviderKey, kProviderRegKey, "Software\\Nobody");
  host_.Options.Values.clear();
  expert_->ReadSettings();
  EXPECT_EQ(expert_->ProviderName(), "");
  EXPECT_FALSE(expert_->ProviderCreate(0));
}

TEST_F(Settings, FirstSectionOfTheMappingWins) {
  InstallProvider("Second", "/second.so", false);
  host_.Options.Values = {{"SCCProvider", "Second"}, {"UserName", "bob"}};
  WriteMapping("[Scripted]\nUserName=ann\n[Second]\nUserName=carl\n");
  auto& expert = Start();
  expert.ReadProjectSettings(project_file_);
  EXPECT_EQ(expert.ProviderName(), kScripted);
  EXPECT_EQ(expert.UserName(), "ann");
  EXPECT_EQ(expert.ProviderPath(), ScriptedProviderLibrary::Path());

  for (const char* nothing : {"", "no sections here\n"}) {
    WriteMapping(nothing);
    expert.ReadProjectSettings(project_file_);
    EXPECT_EQ(expert.ProviderName(), "Second");
    EXPECT_EQ(expert.UserName(), "bob");
  }
}

TEST_F(Settings, BrokenMappingIsReportedAndStaysAsItIs) {
  auto& expert = Start();
  const std::string binary("[Scripted]\n\0\xFF\xFE", 14);
  WriteMapping(binary);
  EXPECT_FALSE(expert.ProjectExists(At("App.cdp")));
  EXPECT_THAT(forms_.LinesOf(mwtInfo),
              Contains(HasSubstr("ProjectExists exception: The project mapping file")));
  expert.ReadProjectSettings(project_file_);
  EXPECT_THAT(forms_.LinesOf(mwtError), Contains(HasSubstr("ReadSettings; The project mapping file")));
  EXPECT_FALSE(expert.UpdateSCCIniFile(project_file_, "ann"));
  EXPECT_EQ(Mapping(), binary);
}

TEST_F(Settings, MappingWithoutAProviderIsReportedOnce) {
  for (const char* text : {"", "ProjName=x\n", "[Script"}) {
    SCOPED_TRACE(text);
    WriteMapping(text);
    auto& expert = Start();
    host_.AddProject(project_file_, units_);
    for (int i = 0; i < 3; ++i) expert.Menu()->Map.OnClick();
    EXPECT_THAT(forms_.LinesOf(mwtWarning), ElementsAre(HasSubstr("App.cdp")));
    host_.CloseModule(project_file_);
    expert_.reset();
    forms_.Lines.clear();
  }
}

TEST_F(Settings, NoRegistryMeansNoProviderAndNoCrash) {
  TRegistry().DeleteKey("Software");
  auto& expert = Open();
  EXPECT_EQ(expert.ProviderName(), "");
  expert.Menu()->Map.OnClick();
  EXPECT_FALSE(expert.Menu()->actCheckOutFiles.Enabled);
  EXPECT_THAT(forms_.LinesOf(mwtWarning), ElementsAre("No source code control providers installed"));
}

TEST_F(Settings, ChoosingAProviderEndsTheOldOneBeforeTheNewOneStarts) {
  InstallProvider("Second", ScriptedProviderLibrary::Path(), false);
  InstallProvider("Broken", At("unit1.pas"), false);
  auto& expert = Open();
  provider_->Calls.clear();
  expert.ChooseProvider("Second", "carl");
  EXPECT_THAT(provider_->Entries(), ElementsAre("SccCloseProject", "SccUninitialize", "SccInitialize",
                                                "SccSetOption", "SccSetOption", "SccSetOption"));
  EXPECT_EQ(expert.ProviderList()->UserName(), "carl");
  expert.Menu()->Map.OnClick();
  EXPECT_TRUE(provider_->Open) << "the project's own mapping holds again";

  EXPECT_EQ(AbortOf([&] { expert.ChooseProvider("Broken", "carl"); }), "SCC DLL Loadlibrary failed");
  EXPECT_EQ(AbortOf([&] { expert.ChooseProvider("No providers available", ""); }),
            "A provider path was not specified (SCC provider installed?)");
  EXPECT_EQ(expert.ProviderList(), nullptr);
}

}  // namespace kestrel::addin
