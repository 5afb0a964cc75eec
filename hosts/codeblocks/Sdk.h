// The IDE's SDK, and its open files by name.
#pragma once

#include <cbeditor.h>
#include <cbproject.h>
#include <cbworkspace.h>
#include <editormanager.h>
#include <logmanager.h>
#include <manager.h>
#include <projectfile.h>
#include <projectmanager.h>
#include <sdk.h>

#include <string>

#include "system/Paths.h"
#include "toolkit/WxText.h"

namespace kestrel::codeblocks {

inline EditorManager& Editors() { return *Manager::Get()->GetEditorManager(); }
inline ProjectManager& Projects() { return *Manager::Get()->GetProjectManager(); }

inline std::string FileOf(const cbProject* project) { return project ? FromWx(project->GetFilename()) : ""; }
/// Empty for null and for pages that show no file, such as the start page.
inline std::string FileOf(const EditorBase* editor) {
  return editor && editor->VisibleToTree() ? FromWx(editor->GetFilename()) : "";
}

// The SDK's objects are destroyed when their file is closed or reloaded: look them up again instead of keeping them.

/// The open project of that file, ignoring case; null if there is none.
inline cbProject* FindProject(const std::string& fileName) {
  const auto wanted = FoldFileName(fileName);
  for (auto* project : *Projects().GetProjects())
    if (FoldFileName(FileOf(project)) == wanted) return project;
  return nullptr;
}

/// The editor of that file, ignoring case; null if it is not open.
inline EditorBase* FindEditor(const std::string& fileName) {
  const auto wanted = FoldFileName(fileName);
  for (int i = 0; i < Editors().GetEditorsCount(); ++i)
    if (auto* editor = Editors().GetEditor(i); FoldFileName(FileOf(editor)) == wanted) return editor;
  return nullptr;
}

}  // namespace kestrel::codeblocks
