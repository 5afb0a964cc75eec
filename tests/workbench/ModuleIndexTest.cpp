#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "workbench/model/ModuleIndex.h"

namespace kestrel::workbench {

const TPackageCaller caller([](const std::string&) {});

TEST(ModuleIndex, FindsAModuleByEachOfItsFilesIgnoringCase) {
  TTemporaryFolder folder;
  folder.Write("Main.kfm", "");
  TModuleIndex index;
  auto& unit = static_cast<TUnit&>(index.Add(std::make_unique<TUnit>(folder / "Main.pas", caller)));
  EXPECT_EQ(index.Find(folder / "MAIN.PAS"), &unit);
  EXPECT_EQ(index.Find(folder / "main.kfm"), &unit);
  EXPECT_EQ(index.Find(folder / "Main.res"), nullptr);

  index.Renaming(unit);
  unit.Rename(folder / "Other.pas");
  index.Renamed(unit);
  EXPECT_EQ(index.Find(folder / "Main.kfm"), nullptr);
  EXPECT_EQ(index.Find(folder / "other.kfm"), &unit);
  EXPECT_EQ(index.Remove(unit).get(), &unit);
  EXPECT_EQ(index.Find(folder / "Other.pas"), nullptr);
}

}  // namespace kestrel::workbench
