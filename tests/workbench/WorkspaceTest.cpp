// The workspace on real files, with windows that only record what they show.
#include "support/NativePath.h"
#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "workbench/model/Workspace.h"
#include "workbench/model/WorkspaceServices.h"

namespace kestrel::workbench {

class TPlainView final : public IDocumentView {
 public:
  std::string ReadText() const override { return Text; }
  void ShowText(const std::string& text) override {
    Text = text;
    Changed = false;
  }
  bool HasChanges() const override { return Changed; }
  void MarkSaved() override { Changed = false; }
  void LockText(bool locked) override { Locked = locked; }

  std::string Text;
  bool Changed = false;
  bool Locked = false;
};

class TPlainUi final : public IWorkspaceUi {
 public:
  void EditorOpened(TTextEditor& editor) override { editor.AttachView(&Views[&editor]); }
  void EditorClosing(TTextEditor& editor) override {
    editor.AttachView(nullptr);
    Views.erase(&editor);
    if (Front == &editor) Front = nullptr;
  }
  void ShowEditor(TTextEditor& editor) override { Front = &editor; }
  TTextEditor* ActiveEditor() override { return Front; }
  void EditorChanged(TTextEditor&) override {}
  void ProjectsChanged() override {}
  TSaveAnswer AskSave(const std::string& fileName) override {
    Asked.push_back(ExtractFileName(fileName));
    return SaveAnswer;
  }
  bool AskReload(const std::string& fileName) override {
    Asked.push_back(ExtractFileName(fileName));
    return ReloadAnswer;
  }
  std::string AskSaveName(const std::string&) override { return SaveName; }

  std::map<TTextEditor*, TPlainView> Views;
  TTextEditor* Front = nullptr;
  std::vector<std::string> Asked;
  TSaveAnswer SaveAnswer = TSaveAnswer::Cancel;
  bool ReloadAnswer = false;
  std::string SaveName;
};

/// Records each notification as "code file".
class TListener final : public IOTAIDENotifier {
 public:
  void AfterSave() override {}
  void BeforeSave() override {}
  void Destroyed() override {}
  void Modified() override {}
  void FileNotification(TOTAFileNotification code, const std::string& fileName, bool& cancel) override {
    const std::string name = ExtractFileName(fileName);
    Heard.push_back(std::to_string(static_cast<int>(code)) + ' ' + name);
    EXPECT_NE(Services->FindModule(fileName), nullptr) << "a file is open at each of its notifications";
    cancel = cancel || Heard.back() == Refused;
  }
  void BeforeCompile(IOTAProject*, bool&) override {}
  void AfterCompile(bool) override {}
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTANotifier, IOTAIDENotifier>(this, iid);
  }
  std::vector<std::string> Take() { return std::exchange(Heard, {}); }

  IOTAModuleServices* Services = nullptr;
  std::vector<std::string> Heard;
  std::string Refused;
};

class Workspace : public testing::Test {
 protected:
  Workspace() {
    for (const char* unit : {"A1.pas", "A2.pas", "B1.pas"}) folder_.Write(unit, "unit U;\n");
    folder_.Write("A1.kfm", "object A1\nend\n");
    folder_.Write("A.qvxproj", "[Project]\n[Modules]\nModule=A1.pas\nModule=A2.pas\nModule=tool.dll\n");
    folder_.Write("B.qvxproj", "[Project]\n[Modules]\nModule=B1.pas\n");
    folder_.Write("G.qvxgroup",
                  "[Group]\nActive=B.qvxproj\n[Projects]\nProject=A.qvxproj\nProject=B.qvxproj\n"
                  "Project=gone/C.qvxproj\n");
    listener_->Services = &services_;
    notifications_.Notifiers().Add(listener_);
  }
  std::string Path(const std::string& name) const { return folder_ / name; }
  TOpenModule& Module(const std::string& name) { return *workspace_.Modules().Find(Path(name)); }
  TProject& Project(const std::string& name) { return dynamic_cast<TProject&>(Module(name)); }
  TPlainView& View(const std::string& name) {
    return ui_.Views[dynamic_cast<TTextEditor*>(Module(name).FindDocument(Path(name)))];
  }
  void Type(const std::string& name, const std::string& text) {
    View(name).Text = text;
    View(name).Changed = true;
  }
  std::string OnDisk(const std::string& name) const { return ReadWholeFile(Path(name)); }
  std::vector<std::string> OpenNames() {
    std::vector<std::string> names;
    for (int i = 0; i < services_.GetModuleCount(); ++i)
      names.push_back(ExtractFileName(services_.GetModule(i)->GetFileName()));
    return names;
  }

  TTemporaryFolder folder_;
  std::vector<std::string> lines_;
  TPackageCaller caller_{[this](const std::string& line) { lines_.push_back(line); }};
  TNotifications notifications_{caller_};
  std::shared_ptr<TListener> listener_ = std::make_shared<TListener>();
  TPlainUi ui_;
  TWorkspace workspace_{ui_, caller_, notifications_};
  TModuleServices services_{workspace_};
  TActionServices actions_{workspace_};
};

TEST_F(Workspace, OpensAGroupAndReportsMissingProjects) {
  ASSERT_TRUE(workspace_.Open(Path("G.qvxgroup")));
  EXPECT_THAT(OpenNames(), ElementsAre("G.qvxgroup", "A.qvxproj", "B.qvxproj"));
  EXPECT_EQ(workspace_.ActiveProject(), &Project("B.qvxproj"));
  EXPECT_THAT(listener_->Take(), ElementsAre("1 G.qvxgroup", "1 A.qvxproj", "1 B.qvxproj"));
  EXPECT_THAT(lines_, ElementsAre(HasSubstr(Native("gone/C.qvxproj") + " does not exist")));
  EXPECT_EQ(Project("A.qvxproj").ModuleFileName(2), Path("tool.dll"));
  EXPECT_EQ(Project("A.qvxproj").ModuleFileName(3), "");
}

TEST_F(Workspace, PutsALoneProjectIntoAGroupInMemory) {
  folder_.Write("ProjectGroup1.qvxgroup", "[Group]\n");
  ASSERT_TRUE(actions_.OpenProject(Path("A.qvxproj"), true));
  EXPECT_EQ(services_.GetMainProjectGroup()->GetFileName(), Path("ProjectGroup2.qvxgroup"));
  EXPECT_EQ(services_.GetMainProjectGroup()->GetActiveProject()->GetFileName(), Path("A.qvxproj"));
  ASSERT_TRUE(actions_.OpenProject(Path("B.qvxproj"), false));
  EXPECT_THAT(listener_->Take(), ElementsAre("1 A.qvxproj", "1 B.qvxproj", "9 B.qvxproj"))
      << "the project that joined is the active one";
  workspace_.Close(Project("B.qvxproj"));
  EXPECT_TRUE(services_.CloseAll());
  EXPECT_TRUE(ui_.Asked.empty()) << "nobody misses the file of such a group";
  EXPECT_EQ(services_.GetMainProjectGroup(), nullptr);
}

TEST_F(Workspace, ReopensAProjectTheWayAddInsDo) {
  ASSERT_TRUE(workspace_.Open(Path("G.qvxgroup")));
  workspace_.SetActiveProject(Project("A.qvxproj"));
  EXPECT_TRUE(workspace_.CloseAll());
  EXPECT_EQ(TGroupFile::Parse(OnDisk("G.qvxgroup")).Active(), "A.qvxproj") << "stored without a question";
  EXPECT_TRUE(ui_.Asked.empty());
  ASSERT_TRUE(workspace_.Open(Path("G.qvxgroup")));
  workspace_.SetActiveProject(Project("B.qvxproj"));
  SetFileAttributesOf(Path("G.qvxgroup"), faReadOnly);
  listener_->Take();
  const std::string group = services_.GetMainProjectGroup()->GetFileName();
  EXPECT_TRUE(services_.CloseAll());
  EXPECT_TRUE(actions_.OpenFile(group));
  EXPECT_EQ(workspace_.ActiveProject(), &Project("B.qvxproj"))
      << "the user's choice survives, also in a read-only group";
  EXPECT_THAT(listener_->Take(), ElementsAre("2 B.qvxproj", "2 A.qvxproj", "2 G.qvxgroup", "1 G.qvxgroup",
                                             "1 A.qvxproj", "1 B.qvxproj"));
}

TEST_F(Workspace, ClosesAProjectWithItsUnitsAndMovesOn) {
  ASSERT_TRUE(workspace_.Open(Path("G.qvxgroup")));
  workspace_.Open(Path("B1.pas"));
  workspace_.Open(Path("A1.pas"));
  listener_->Take();
  EXPECT_TRUE(workspace_.Close(Project("B.qvxproj")));
  EXPECT_THAT(listener_->Take(), ElementsAre("2 B1.pas", "2 B.qvxproj", "9 A.qvxproj"));
  EXPECT_THAT(OpenNames(), ElementsAre("G.qvxgroup", "A.qvxproj", "A1.pas"));
  ui_.SaveAnswer = TSaveAnswer::Discard;
  EXPECT_TRUE(workspace_.CloseAll());
  EXPECT_THAT(ui_.Asked, ElementsAre("G.qvxgroup")) << "the group lost a project";
}

TEST_F(Workspace, StaysOpenWhenTheUserOrAPackageRefusesToClose) {
  ASSERT_TRUE(workspace_.Open(Path("A.qvxproj")));
  workspace_.Open(Path("A1.pas"));
  workspace_.Open(Path("A2.pas"));
  Type("A2.pas", "unit Mine;\n");
  EXPECT_FALSE(workspace_.CloseAll());
  EXPECT_EQ(OpenNames().size(), 4u) << "cancelled before anything closed";

  ui_.SaveAnswer = TSaveAnswer::Save;
  listener_->Refused = "2 A1.pas";
  EXPECT_FALSE(workspace_.CloseAll());
  EXPECT_EQ(OnDisk("A2.pas"), "unit Mine;\n");
  EXPECT_THAT(OpenNames(), Contains("A1.pas"));
}

TEST_F(Workspace, ShowsAFormWithItsUnit) {
  ASSERT_TRUE(workspace_.Open(Path("A1.kfm")));
  EXPECT_THAT(OpenNames(), ElementsAre("A1.pas"));
  EXPECT_EQ(ui_.Front->FileName(), Path("A1.kfm"));
  IOTAModule* module = services_.FindModule(Path("a1.PAS"));
  ASSERT_NE(module, nullptr);
  EXPECT_EQ(module->GetEditorCount(), 2);
  EXPECT_NE(Supports<IOTASourceEditor>(module->GetEditor(0)), nullptr);
  EXPECT_NE(Supports<IOTAFormEditor>(module->GetEditor(1)), nullptr);
  EXPECT_EQ(Supports<IOTASourceEditor>(module->GetEditor(1)), nullptr);
  EXPECT_EQ(module->GetEditor(2), nullptr);
  EXPECT_EQ(services_.CurrentModule(), module);
}

TEST_F(Workspace, RefusesToSaveAReadOnlyFile) {
  ASSERT_TRUE(workspace_.Open(Path("A1.pas")));
  Type("A1.pas", "unit Mine;\n");
  SetFileAttributesOf(Path("A1.pas"), faReadOnly);
  EXPECT_FALSE(services_.SaveAll());
  EXPECT_THAT(lines_, ElementsAre("A1.pas is read-only on disk and was not saved."));
  EXPECT_EQ(OnDisk("A1.pas"), "unit U;\n");
  EXPECT_TRUE(services_.FindModule(Path("A1.pas"))->GetEditor(0)->GetModified());
}

TEST_F(Workspace, ReloadsContentsAndReadOnlyState) {
  ASSERT_TRUE(workspace_.Open(Path("A1.pas")));
  WriteFileAtomically(Path("A1.pas"), "unit Theirs;\n");
  WriteFileAtomically(Path("A1.kfm"), "object Theirs\nend\n");
  SetFileAttributesOf(Path("A1.pas"), faReadOnly);
  Type("A1.pas", "unit Mine;\n");
  EXPECT_FALSE(actions_.ReloadFile(Path("A1.pas")));
  EXPECT_EQ(View("A1.pas").Text, "unit Mine;\n") << "nothing typed goes without a question";
  EXPECT_TRUE(View("A1.pas").Locked);
  ui_.ReloadAnswer = true;
  EXPECT_TRUE(actions_.ReloadFile(Path("A1.pas")));
  EXPECT_THAT(ui_.Asked, ElementsAre("A1.pas", "A1.pas"));
  EXPECT_EQ(View("A1.pas").Text, "unit Theirs;\n");
  EXPECT_TRUE(View("A1.pas").Locked);
  EXPECT_FALSE(View("A1.pas").Changed);
  EXPECT_EQ(View("A1.kfm").Text, "object A1\nend\n") << "only what was asked for";
  EXPECT_FALSE(actions_.ReloadFile(Path("A2.pas"))) << "not open";
  SetFileAttributesOf(Path("A1.pas"), faArchive);
  fs::remove(Path("A1.pas"));
  EXPECT_FALSE(actions_.ReloadFile(Path("A1.pas")));
  EXPECT_EQ(View("A1.pas").Text, "unit Theirs;\n");
}

TEST_F(Workspace, FollowsChangesOnDisk) {
  ASSERT_TRUE(workspace_.Open(Path("A.qvxproj")));
  workspace_.Open(Path("A1.pas"));
  workspace_.Open(Path("A2.pas"));
  folder_.Write("A.qvxproj", "[Project]\n[Modules]\nModule=B1.pas\n");
  SetFileAttributesOf(Path("A1.pas"), faReadOnly);
  fs::remove(Path("A2.pas"));
  workspace_.CheckDisk();
  EXPECT_EQ(Project("A.qvxproj").ModuleFileName(0), Path("B1.pas"));
  EXPECT_TRUE(View("A1.pas").Locked);
  EXPECT_THAT(lines_, Contains(HasSubstr("A2.pas no longer exists")));
  lines_.clear();
  workspace_.CheckDisk();
  EXPECT_TRUE(lines_.empty()) << "said once";
  EXPECT_FALSE(workspace_.Close(Module("A2.pas"))) << "its text is nowhere else: closing asks";
}

TEST_F(Workspace, AddsFilesOnceAndNamesNewUnits) {
  ASSERT_TRUE(workspace_.Open(Path("B.qvxproj")));
  EXPECT_EQ(workspace_.AddToProject({Path("A1.pas"), Path("a1.PAS"), Path("B1.pas")}), 1u);
  folder_.Write("Unit1.pas", "");
  TUnit& unit = workspace_.NewUnit("/");
  EXPECT_EQ(unit.FileName(), Path("Unit2.pas"));
  EXPECT_TRUE(services_.SaveAll());
  EXPECT_THAT(OnDisk("Unit2.pas"), HasSubstr("unit Unit2;"));
  EXPECT_THAT(TProjectFile::Parse(OnDisk("B.qvxproj")).Items(), ElementsAre("B1.pas", "A1.pas", "Unit2.pas"));
}

TEST_F(Workspace, FollowsAUnitThatIsSavedUnderAnotherName) {
  ASSERT_TRUE(workspace_.Open(Path("A.qvxproj")));
  workspace_.Open(Path("A1.pas"));
  ui_.SaveName = Path("Moved.pas");
  EXPECT_TRUE(workspace_.SaveUnitAs(dynamic_cast<TUnit&>(Module("A1.pas"))));
  EXPECT_EQ(services_.FindModule(Path("A1.pas")), nullptr);
  EXPECT_EQ(OnDisk("Moved.kfm"), "object A1\nend\n");
  EXPECT_EQ(Project("A.qvxproj").ModuleFileName(0), Path("Moved.pas"));
  ui_.SaveName = Path("A2.pas");
  workspace_.Open(Path("A2.pas"));
  EXPECT_THROW(workspace_.SaveUnitAs(dynamic_cast<TUnit&>(Module("Moved.pas"))), std::runtime_error);
}

}  // namespace kestrel::workbench
