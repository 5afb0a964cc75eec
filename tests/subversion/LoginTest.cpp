// The login that a server asks for, answered in the provider's window.

#include "Developer.h"
#include "Server.h"
#include "WindowControls.h"

namespace kestrel::svnscc {

namespace {

struct Logins : testing::Test {
  /// The next window asks for a login: answers it, or cancels when there is no password.
  void Answer(const char* message, const char* password, const char* user = nullptr) {
    script.Expect<wxDialog>([=](wxDialog& dialog) {
      EXPECT_THAT(Message(dialog), HasSubstr(message));
      EXPECT_THAT(Message(dialog), HasSubstr("127.0.0.1"));
      EXPECT_EQ("ann", Find<wxTextCtrl>(dialog, "user")->GetValue());
      if (user != nullptr) Find<wxTextCtrl>(dialog, "user")->SetValue(user);
      Find<wxTextCtrl>(dialog, "password")->SetValue(password != nullptr ? password : "");
      dialog.SetReturnCode(password != nullptr ? wxID_OK : wxID_CANCEL);
    });
  }
  TTestRepository repository;
  TServer server{repository};
  TModalScript script;
  TDeveloper ann{"ann"};
};

}  // namespace

TEST_F(Logins, AreAskedForOnceAndAgainWhenRefused) {
  Answer("asks for a login", nullptr);
  EXPECT_EQ(SCC_E_INVALIDUSER, ann.Open(server.Url(), "project"));

  Answer("asks for a login", "wrong");
  Answer("did not accept", "secret");
  ASSERT_EQ(SCC_OK, ann.Open(server.Url(), "project")) << ann.Said();
  ann.Write("unit1.pas", "1\n");
  EXPECT_EQ(SCC_OK, ann.Add({"unit1.pas"})) << ann.Said();
  EXPECT_EQ("ann", repository.Author(repository.Youngest()));

  ann.Close();
  EXPECT_EQ(SCC_OK, ann.Open(server.Url(), "project")) << "remembered";
  EXPECT_EQ(SCC_OK, ann.CheckOut({"unit1.pas"})) << ann.Said();
}

TEST_F(Logins, MayBeAnotherUsers) {
  Answer("asks for a login", "other", "bob");
  ASSERT_EQ(SCC_OK, ann.Open(server.Url(), "project")) << ann.Said();
  EXPECT_EQ("bob", repository.Author(repository.Youngest()));
  ann.Write("unit1.pas", "1\n");
  EXPECT_EQ(SCC_OK, ann.Add({"unit1.pas"}, "", SCC_KEEP_CHECKEDOUT)) << ann.Said();
  EXPECT_EQ(kOutHere, ann.Status("unit1.pas")) << "out here, to whoever logged in";
}

}  // namespace kestrel::svnscc
