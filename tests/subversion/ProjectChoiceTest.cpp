// The rules of the project dialog, without its window.

#include "Developer.h"
#include "subversion/project/ProjectChoice.h"
#include "subversion/project/RecentRepositories.h"
#include "subversion/svn/Repository.h"

namespace kestrel::svnscc {

namespace {

struct Choice : testing::Test {
  Choice() {
    EnsureRuntime();
    Client client("ann");
    for (const char* folder : {"trunk/app one", "trunk/lib"})
      MakeFolder(client, UrlOf(repository.Url(), folder), "");
  }
  static ProjectRequest Request() { return {"ann", "", "", "/home/ann/app", true, false}; }
  TTestRepository repository;
  ProjectChoice choice{Request()};
};

}  // namespace

TEST(RepositoryAddress, IsAUrlOrAnAbsoluteFolder) {
  EnsureRuntime();
  using Row = std::pair<const char*, std::optional<std::string>>;
  for (const auto& [text, url] :
       {Row{"file:///srv/repo/", "file:///srv/repo"}, Row{"  svn://Host/a b ", "svn://host/a%20b"},
        Row{"http://host/%7euser//x", "http://host/~user/x"}, Row{"/srv/my repo", "file:///srv/my%20repo"},
        Row{"/srv/Größe", "file:///srv/Gr%C3%B6%C3%9Fe"}, Row{"", std::nullopt}, Row{"repo", std::nullopt},
        Row{"http://", std::nullopt}, Row{"svn://host/a/../b", std::nullopt}})
    EXPECT_EQ(url, ToRepositoryUrl(text)) << text;
}

TEST_F(Choice, AcceptsNothingBeforeARepositoryAndAFolderAreChosen) {
  EXPECT_FALSE(choice.CanAccept());
  for (const std::string address : {"no address", "file:///no/such/repository"}) {
    EXPECT_FALSE(choice.Connect(address));
    EXPECT_TRUE(choice.IsError());
    EXPECT_THAT(choice.Message(), HasSubstr(address.substr(address.rfind('/') + 1)));
    EXPECT_FALSE(choice.IsConnected());
  }
  ASSERT_TRUE(choice.Connect(repository.Folder()));
  EXPECT_EQ(repository.Url(), choice.Root());
  choice.Select(std::nullopt);
  EXPECT_FALSE(choice.CanAccept());
  choice.Select("trunk/app one");
  EXPECT_TRUE(choice.CanAccept()) << choice.Message();
  EXPECT_EQ("trunk/app one", choice.Result().ProjectName);
  EXPECT_EQ(repository.Url(), choice.Result().Repository);
  choice.SetUser("  ");
  EXPECT_FALSE(choice.CanAccept());
}

TEST_F(Choice, SelectsTheFolderOfAnAddressInsideARepository) {
  ASSERT_TRUE(choice.Connect(UrlOf(repository.Url(), "trunk/lib"))) << choice.Message();
  EXPECT_EQ(repository.Url(), choice.Root());
  EXPECT_EQ("trunk/lib", choice.Selected());
  EXPECT_THAT(choice.FoldersOf("trunk/lib"), IsEmpty());
}

TEST_F(Choice, PlansNewFoldersAndDoesNotMakeThem) {
  choice.Connect(repository.Url());
  for (const char* bad : {"lib", "a/b", ".."}) EXPECT_EQ(std::nullopt, choice.AddFolder("trunk", bad));
  EXPECT_EQ("trunk/new", choice.AddFolder("trunk", " new "));
  EXPECT_EQ("trunk/new/inner", choice.AddFolder("trunk/new", "inner"));
  EXPECT_THAT(choice.FoldersOf("trunk"), ElementsAre("app one", "lib", "new"));
  EXPECT_THAT(choice.FoldersOf("trunk/new"), ElementsAre("inner"));
  choice.Select("trunk/new/inner");
  EXPECT_TRUE(choice.Result().IsNew);
  EXPECT_FALSE(repository.Exists("trunk/new"));
  choice.Select("trunk/lib");
  EXPECT_FALSE(choice.Result().IsNew);
}

TEST_F(Choice, MakesANewRepositoryInAnEmptyFolderOnly) {
  const TTemporaryFolder place;
  EXPECT_FALSE(choice.CreateRepository(repository.Folder()));
  EXPECT_THAT(choice.Message(), HasSubstr("is not empty"));
  ASSERT_TRUE(choice.CreateRepository(place / "new repository")) << choice.Message();
  EXPECT_TRUE(choice.IsConnected());
  EXPECT_EQ("", choice.Selected());
  EXPECT_EQ("/", choice.Result().ProjectName);
}

TEST_F(Choice, ProposesWhatWasThereBefore) {
  EXPECT_EQ("", choice.ProposedRepository());
  for (const char* name : {"one", "two", "one"}) RememberRepository(std::string("svn://host/") + name);
  EXPECT_THAT(RecentRepositories(), ElementsAre("svn://host/one", "svn://host/two"));
  EXPECT_EQ("svn://host/one", ProjectChoice(Request()).ProposedRepository());
  EXPECT_FALSE(ProjectChoice(Request()).ShouldConnectAtOnce());

  auto again = Request();
  again.Repository = repository.Url();
  again.ProjectName = "trunk/lib";
  ProjectChoice bound(again);
  EXPECT_EQ(repository.Url(), bound.ProposedRepository());
  ASSERT_TRUE(bound.ShouldConnectAtOnce());
  ASSERT_TRUE(bound.Connect(bound.ProposedRepository()));
  EXPECT_EQ("trunk/lib", bound.Selected());
  again.Repository = "file:///somebody/else";
  EXPECT_FALSE(ProjectChoice(again).ShouldConnectAtOnce()) << "never used: the user presses Connect";

  TDeveloper ann("ann");  // a working copy knows where it belongs
  ann.Open(repository.Url(), "trunk/app one");
  auto here = Request();
  here.LocalFolder = ann.Folder();
  EXPECT_EQ(repository.Url() + "/trunk/app one", ProjectChoice(here).ProposedRepository());
}

}  // namespace kestrel::svnscc
