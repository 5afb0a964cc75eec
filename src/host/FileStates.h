// The state of files under source control, for a host that shows it beside their names, and the check-out of a file that the
// user starts to edit.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/Interface.h"

namespace kestrel {

/// What a host marks a file with.  If several apply to a file, it has the last of them.
enum class TFileMark {
  Unknown,        ///< the provider has not answered yet: no mark
  NotControlled,  ///< could be added
  Controlled,     ///< in the repository, checked out by nobody
  OutToMe,        ///< checked out here
  Changed,        ///< differs from the version that it is based on
  OutOfDate,      ///< the repository has a newer version, or none any more
  OutToOther,     ///< checked out by another user, or by this one in another place
  InConflict,     ///< changed here and in the repository; nobody has settled it yet
};

struct TFileState {
  std::string FileName;  ///< full path in UTF-8; compares ignoring case
  TFileMark Mark = TFileMark::Unknown;
  /// Everything that applies, one line each, for a tool tip: "Checked out by you\nChanged".  Empty for Unknown.
  std::string Hint;

  bool operator==(const TFileState&) const = default;
};

/// Checks out one file that the user starts to edit although it is read-only.
struct TCheckOutOffer {
  /// Whether Run() is worth a question.  Fast: calls no provider.
  std::function<bool(const std::string& fileName)> IsOffered;
  /// Checks the file out, together with the files that belong to it, without asking anything more.  Returns whether the
  /// file is writable now; the host has then been asked to reload it.  Otherwise the user has seen the reason.  Must not
  /// throw.  Runs message loops, in which editors may close.
  std::function<bool(const std::string& fileName)> Run;
};

/// Optional: without it packages lose nothing else.
///
/// The states come from answers that the package needed anyway, so a host need not ask for them, and a file can have
/// changed since.  When the host starts, every file is Unknown.
class IOTAFileStateServices : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B41, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x31}};
  /// Replaces the states of these files; the others keep theirs.  There may be 65,536, and names that the host does not
  /// show: it must store them fast and repaint once.  Called inside provider calls and the opening of menus, so the host
  /// must not call the package from it.
  virtual void SetFileStates(const std::vector<TFileState>& states) = 0;
  /// Makes every file Unknown: the project was closed.
  virtual void ClearFileStates() = 0;
  /// Offers check-outs.  When the user types into a read-only file for which IsOffered() is true, the host asks once per
  /// file whether to check it out.  After "Yes" it calls Run() from its message loop, not from inside the edit control's
  /// notification, looks its editor up again and enters what the user typed.  Borrowed until RemoveCheckOutOffer().
  virtual void InsertCheckOutOffer(TCheckOutOffer& offer) = 0;
  virtual void RemoveCheckOutOffer(TCheckOutOffer& offer) = 0;
};

}  // namespace kestrel
