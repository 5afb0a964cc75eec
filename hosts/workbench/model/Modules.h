// The modules that can be open: units (with their forms), projects and project groups.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "workbench/model/Editors.h"

namespace kestrel::workbench {

/// An open module: the host's side of IOTAModule.
class TOpenModule : public virtual IOTAModule {
 public:
  explicit TOpenModule(std::string fileName) : fileName_(std::move(fileName)) {}

  const std::string& FileName() const { return fileName_; }
  const std::vector<std::unique_ptr<TDocument>>& Documents() const { return documents_; }
  /// The document of that file, compared ignoring case; nullptr when the module has none.
  TDocument* FindDocument(const std::string& fileName) const;

  std::string GetFileName() override { return fileName_; }
  int GetEditorCount() override { return static_cast<int>(documents_.size()); }
  IOTAEditor* GetEditor(int index) override;
  void* QueryInterface(const TGuid& iid) noexcept override { return FindInterface<IOTAModule>(this, iid); }

 protected:
  template <class TDoc>
  TDoc& AddDocument(const std::string& fileName, const TPackageCaller& caller) {
    auto document = std::make_unique<TDoc>(fileName, caller);
    TDoc& result = *document;
    documents_.push_back(std::move(document));
    return result;
  }
  void SetFileName(std::string fileName) { fileName_ = std::move(fileName); }

 private:
  std::string fileName_;
  std::vector<std::unique_ptr<TDocument>> documents_;
};

/// A unit with its form, when one stands beside it, or a lone text or form file.
class TUnit final : public TOpenModule {
 public:
  /// Nothing is read yet.
  TUnit(const std::string& fileName, const TPackageCaller& caller);
  TTextEditor& Text(std::size_t index) const { return static_cast<TTextEditor&>(*Documents()[index]); }
  /// Gives the unit, and its form with it, another name.
  void Rename(const std::string& fileName);
};

class TProject final : public TOpenModule, public IOTAProject {
 public:
  TProject(const std::string& fileName, const TPackageCaller& caller);
  TDefinitionEditor<TProjectFile>& Definition() { return definition_; }
  /// Appends those that the project does not list yet (compared ignoring case); how many there were.
  std::size_t AddModuleFiles(const std::vector<std::string>& fileNames);
  void RemoveModuleFile(int index);
  /// -1 when the project does not list it.
  int IndexOfModuleFile(const std::string& fileName) const;

  int GetModuleCount() override;
  std::string ModuleFileName(int index) override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAModule, IOTAProject>(this, iid);
  }

 private:
  TDefinitionEditor<TProjectFile>& definition_;
};

/// The group that the workbench works on.  It refers to its open projects; those belong to the workspace.
class TProjectGroup final : public TOpenModule, public IOTAProjectGroup {
 public:
  TProjectGroup(const std::string& fileName, const TPackageCaller& caller);
  TDefinitionEditor<TGroupFile>& Definition() { return definition_; }
  /// A group that exists in memory only; with a single project nobody misses its file.
  bool IsUnsaved() const { return definition_.IsNew(); }
  /// Gives the group its file: all stored paths follow.
  void Rename(const std::string& fileName);

  const std::vector<TProject*>& Projects() const { return projects_; }
  TProject* Active() const { return active_; }
  void Add(TProject& project);
  /// Another project becomes active when the active one goes.
  void Remove(TProject& project);
  void SetActive(TProject& project);
  /// Used while closing: forgets the project, the group's file stays as it is.
  void Detach(TProject& project);
  /// Used while opening: refers to a project that the file already lists.
  void Attach(TProject& project, bool active);
  /// The active project is another one than the file says.
  bool ActiveDiffersFromFile() const { return savedActive_ != definition_.Get().Active(); }
  /// Remembers what the file says now: call after loading and saving it.
  void RecordSaved() { savedActive_ = definition_.Get().Active(); }

  IOTAProject* GetActiveProject() override { return active_; }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAModule, IOTAProjectGroup>(this, iid);
  }

 private:
  std::string Stored(const TProject& project) const;
  TDefinitionEditor<TGroupFile>& definition_;
  std::vector<TProject*> projects_;
  TProject* active_ = nullptr;
  std::string savedActive_;
};

}  // namespace kestrel::workbench
