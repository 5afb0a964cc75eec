// The packages' options pages in Settings > Environment.
#pragma once

#include <configurationpanel.h>
#include <sdk.h>

#include <memory>
#include <vector>

#include "hosts/common/OptionBindings.h"
#include "hosts/common/PropertySets.h"

namespace kestrel::codeblocks {

class TOptionsPanel final : public cbConfigurationPanel {
 public:
  TOptionsPanel(wxWindow* parent, TOptionsServices& options, const TPackageCaller& caller);
  wxString GetTitle() const override;
  wxString GetBitmapBaseName() const override { return "generic-plugin"; }
  void OnApply() override;
  void OnCancel() override {}

 private:
  struct TAddIn {
    std::shared_ptr<IOTAAddInOptions> Options;
    std::unique_ptr<TOptionBindings> Bindings;
  };
  std::vector<TAddIn> addIns_;
};

}  // namespace kestrel::codeblocks
