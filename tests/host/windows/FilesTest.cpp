// clang-format off
#include <windows.h>
#include <aclapi.h>
#include <sddl.h>
// clang-format on
#include <process.h>

#include <stdexcept>
#include <thread>

#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "system/windows/Wide.h"

namespace kestrel {

namespace {

/// The list of who may do what with a file, and whether the folder adds to it.
std::string PermissionsOf(const std::string& path) {
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  EXPECT_EQ(GetNamedSecurityInfoW(ToWide(path).c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                                  nullptr, nullptr, nullptr, &descriptor),
            0u);
  char* text = nullptr;
  EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorA(
      descriptor, SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &text, nullptr));
  const std::string permissions = text;
  LocalFree(text);
  LocalFree(descriptor);
  return permissions;
}

/// Its owner and nobody else, whatever the folder says.
void MakePrivate(const std::string& path) {
  PSID owner = nullptr;
  PSECURITY_DESCRIPTOR old = nullptr, descriptor = nullptr;
  ASSERT_EQ(GetNamedSecurityInfoA(path.c_str(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr,
                                  nullptr, nullptr, &old),
            0u);
  char* name = nullptr;
  ASSERT_TRUE(ConvertSidToStringSidA(owner, &name));
  const auto list = std::string("D:P(A;;FA;;;") + name + ")";
  ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorA(list.c_str(), SDDL_REVISION_1, &descriptor,
                                                                   nullptr));
  EXPECT_TRUE(SetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, descriptor));
  for (void* memory : {old, static_cast<void*>(name), descriptor}) LocalFree(memory);
}

HANDLE Hold(const std::string& path, DWORD share) {
  return CreateFileW(ToWide(path).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr);
}

/// Windows makes links for administrators and developers; Wine leaves them to the system below it.
bool MakeLink(const std::string& folder, const char* name, const char* target) {
  const auto before = fs::current_path();
  fs::current_path(ToFilePath(folder));
  CreateSymbolicLinkA(name, target, SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE);
  if (!FileExists(name)) _spawnl(_P_NOWAIT, "Z:\\bin\\ln", "ln", "-s", target, name, nullptr);
  for (int i = 0; i < 100 && !FileExists(name); ++i) Sleep(20);
  const bool made = FileExists(name);
  fs::current_path(before);
  return made;
}

}  // namespace

TEST(Files, AreWrittenThroughLinks) {
  const TTemporaryFolder folder;
  const auto file = folder.Write("real.cdp", "old");
  if (!MakeLink(folder.Path(), "link.cdp", "real.cdp")) GTEST_SKIP() << "this user may make no links";
  WriteFileAtomically(folder / "link.cdp", "new");
  EXPECT_EQ(ReadWholeFile(file), "new");
  EXPECT_EQ(ReadWholeFile(folder / "link.cdp"), "new");
  // Under Wine a link that leads nowhere cannot be deleted: no link is left behind.
  fs::rename(ToFilePath(folder.Write("other", "")), ToFilePath(folder / "link.cdp"));
}

TEST(Files, KeepTheirAccessControlList) {
  const TTemporaryFolder folder;
  const auto file = folder.Write("a.cdp", "old");
  const auto before = PermissionsOf(file);
  MakePrivate(file);
  const auto wanted = PermissionsOf(file);
  EXPECT_NE(wanted, before);
  WriteFileAtomically(file, "new");
  EXPECT_EQ(PermissionsOf(file), wanted);
}

TEST(Files, StayWhileAnotherProgramKeepsThemFromBeingWritten) {
  const TTemporaryFolder folder;
  const auto file = folder.Write("a.cdp", "old");
  auto held = Hold(file, FILE_SHARE_READ | FILE_SHARE_DELETE);
  EXPECT_THAT([&] { WriteFileAtomically(file, "new"); },
              ThrowsMessage<std::runtime_error>(HasSubstr("Cannot write " + file + ": ")));
  EXPECT_EQ(ReadWholeFile(file), "old");

  std::thread closes([&] {
    Sleep(100);
    CloseHandle(held);
  });
  WriteFileAtomically(file, "new");
  closes.join();
  EXPECT_EQ(ReadWholeFile(file), "new");
}

}  // namespace kestrel
