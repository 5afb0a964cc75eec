// The controls of an options page and the fields of a property set that they edit.
#pragma once

#include <string>
#include <vector>

#include "host/Options.h"

namespace kestrel {

/// Binds text boxes and drop-down lists of a dialog to the fields of one property set.
class TOptionBindings final : public IOTAOptionsPageHost {
 public:
  explicit TOptionBindings(IOTAPropertySet& set) : set_(set) {}
  void Bind(wxControl* control, const std::string& field) override;
  std::string GetValue(const std::string& field) override { return set_.GetValue(field); }

  /// Writes the controls' values to the set; returns whether one changed.
  bool Store();

 private:
  struct TBinding {
    wxControl* Control;
    std::string Field;
  };
  IOTAPropertySet& set_;
  std::vector<TBinding> bindings_;
};

}  // namespace kestrel
