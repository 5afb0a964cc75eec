// A registry of the test's own, empty at the beginning and gone at the end; the process sees no other meanwhile.
#pragma once

#include <memory>

namespace kestrel {

class TTestRegistry {
 public:
  TTestRegistry();
  TTestRegistry(const TTestRegistry&) = delete;
  TTestRegistry& operator=(const TTestRegistry&) = delete;
  ~TTestRegistry();

 private:
  struct TImpl;
  std::unique_ptr<TImpl> impl_;
};

}  // namespace kestrel
