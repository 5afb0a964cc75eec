// Keeping a file that libsvn must not see or touch for a while.
#pragma once

#include <svn_io.h>

#include <string>

#include "LocalStatus.h"
#include "SvnHandles.h"

namespace svnscc {

/// A file out of libsvn's sight while this lives.
class SetAside {
 public:
  explicit SetAside(const std::string& path) : path_(path), aside_(path + ".scc-aside") {
    while (IsOnDisk(aside_)) aside_ += "~";
    Move(path_, aside_);
  }
  SetAside(const SetAside&) = delete;
  SetAside& operator=(const SetAside&) = delete;
  ~SetAside() {
    try {
      Move(aside_, path_);
    } catch (
        const Failure&) {  // both names are in one folder, which was just writable; nothing is lost either way
    }
  }

 private:
  static void Move(const std::string& from, const std::string& to) {
    const Pool pool;
    Check(svn_io_file_rename2(from.c_str(), to.c_str(), /*flush_to_disk*/ FALSE, pool));
  }

  std::string path_;
  std::string aside_;
};

}  // namespace svnscc
