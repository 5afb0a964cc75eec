// Open modules: units with their forms, projects and project groups.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "workbench/model/Editors.h"

namespace kestrel::workbench {

/// The host's implementation of IOTAModule.
class TOpenModule : public virtual IOTAModule {
 public:
  explicit TOpenModule(std::string fileName) : fileName_(std::move(fileName)) {}

  const std::string& FileName() const { return fileName_; }
  const std::vector<std::unique_ptr<TDocument>>& Documents() const { return documents_; }
  /// The document of that file, ignoring case; null if the module has none.
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

/// A unit, with its form if one lies beside it, or a lone text or form file.
class TUnit final : public TOpenModule {
 public:
  /// Does not read the files.
  TUnit(const std::string& fileName, const TPackageCaller& caller);
  TTextEditor& Text(std::size_t index) const { return static_cast<TTextEditor&>(*Documents()[index]); }
  /// Renames the unit together with its form.
  void Rename(const std::string& fileName);
};

class TProject final : public TOpenModule, public IOTAProject {
 public:
  TProject(const std::string& fileName, const TPackageCaller& caller);
  TDefinitionEditor<TProjectFile>& Definition() { return definition_; }
  /// Appends the files that the project does not list yet, ignoring case; returns their number.
  std::size_t AddModuleFiles(const std::vector<std::string>& fileNames);
  void RemoveModuleFile(int index);
  /// -1 if the project does not list it.
  int IndexOfModuleFile(const std::string& fileName) const;

  int GetModuleCount() override;
  std::string ModuleFileName(int index) override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAModule, IOTAProject>(this, iid);
  }

 private:
  TDefinitionEditor<TProjectFile>& definition_;
};

/// The open project group. Its projects belong to the workspace.
class TProjectGroup final : public TOpenModule, public IOTAProjectGroup {
 public:
  TProjectGroup(const std::string& fileName, const TPackageCaller& caller);
  TDefinitionEditor<TGroupFile>& Definition() { return definition_; }
  /// The group exists in memory only.
  bool IsUnsaved() const { return definition_.IsNew(); }
  /// Changes the group's file name and adjusts the stored paths.
  void Rename(const std::string& fileName);

  const std::vector<TProject*>& Projects() const { return projects_; }
  TProject* Active() const { return active_; }
  void Add(TProject& project);
  /// Makes another project active if this one was.
  void Remove(TProject& project);
  void SetActive(TProject& project);
  /// For closing: drops the reference and leaves the group's file as it is.
  void Detach(TProject& project);
  /// For opening: refers to a project that the file lists already.
  void Attach(TProject& project, bool active);
  /// Whether the active project differs from the one stored in the file.
  bool ActiveDiffersFromFile() const { return savedActive_ != definition_.Get().Active(); }
  /// Records the active project stored in the file; call after loading and saving.
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
