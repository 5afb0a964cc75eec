#include <gtest/gtest.h>

#include "support/ModalScript.h"
#include "ui/Debug.h"

namespace kestrel::addin {

namespace {

TEST(DebugWindow, LivesFromCreationToFreeing) {
  FreeDebugForm();
  CreateDebugForm();
  ASSERT_NE(DebugForm, nullptr);
  const auto* first = DebugForm;
  CreateDebugForm();
  EXPECT_EQ(DebugForm, first) << "there is one";
  EXPECT_FALSE(DebugForm->IsShown());
  DebugForm->Show();
  DebugForm->memoDebugText->SetValue("text");
  Click(DebugForm->btnClose);
  EXPECT_FALSE(DebugForm->IsShown());
  EXPECT_EQ(DebugForm->memoDebugText->GetValue(), "text") << "closing keeps the text";
  Click(DebugForm->btnClear);
  EXPECT_TRUE(DebugForm->memoDebugText->IsEmpty());
  FreeDebugForm();
  EXPECT_EQ(DebugForm, nullptr);
}

}  // namespace

}  // namespace kestrel::addin
