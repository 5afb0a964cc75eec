#include "workbench/model/Document.h"

#include <filesystem>
#include <stdexcept>

#include "system/FileName.h"
#include "system/Paths.h"
#include "system/System.h"
#include "workbench/model/ModelStrings.h"

namespace kestrel::workbench {

namespace fs = std::filesystem;

TDocument::~TDocument() = default;

void TDocument::Rename(std::string fileName) {
  fileName_ = std::move(fileName);
  stamp_.clear();
  RefreshReadOnly();
}

std::string TDocument::DiskStamp() const {
  std::error_code missing;
  const auto size = fs::file_size(ToFilePath(fileName_), missing);
  if (missing) return {};
  const auto time = fs::last_write_time(ToFilePath(fileName_), missing).time_since_epoch().count();
  return std::to_string(size) + ' ' + std::to_string(time);
}

void TDocument::RefreshReadOnly() {
  readOnly_ = (GetFileAttributesOf(fileName_) & faReadOnly) != 0;
  ShowReadOnly(readOnly_);
}

void TDocument::Load() {
  if (!FileExists(fileName_)) throw std::runtime_error(Format(sFileNotFound, {fileName_}));
  std::error_code unknown;
  if (fs::is_other(ToFilePath(fileName_), unknown))
    throw std::runtime_error(Format(sNoOrdinaryFile, {fileName_}));
  const std::string stamp =
      DiskStamp();  // before reading, so that a concurrent write is noticed by the next check
  SetContents(ReadWholeFile(fileName_));
  stamp_ = stamp;
  RefreshReadOnly();
}

void TDocument::Save() {
  if (GetFileAttributesOf(fileName_) & faReadOnly)
    throw std::runtime_error(Format(sCannotSaveReadOnly, {ExtractFileName(fileName_)}));
  Notify<IOTANotifier>("BeforeSave", [](IOTANotifier& n) { n.BeforeSave(); });
  AboutToSave();
  WriteFileAtomically(fileName_, Contents());
  MarkSaved();
  AcceptDisk();
  Notify<IOTANotifier>("AfterSave", [](IOTANotifier& n) { n.AfterSave(); });
}

TDiskChange TDocument::CheckDisk() {
  if (IsNew()) return TDiskChange::None;
  const std::string now = DiskStamp();
  if (now.empty()) return TDiskChange::Deleted;
  if (now != stamp_) return TDiskChange::Contents;
  const bool before = readOnly_;
  RefreshReadOnly();
  return before == readOnly_ ? TDiskChange::None : TDiskChange::Attributes;
}

void TDocument::AcceptDisk() {
  stamp_ = DiskStamp();
  RefreshReadOnly();
}

void TDocument::NotifyDestroyed() {
  Notify<IOTANotifier>("Destroyed", [](IOTANotifier& n) { n.Destroyed(); });
  notifiers_.Clear();
}

}  // namespace kestrel::workbench
