// File > New > Other: the wizards of the workbench and of packages, by category.
#pragma once

#include "hosts/common/Gallery.h"

class wxWindow;

namespace kestrel::workbench {

/// Lets the user choose a wizard; null if the user cancelled. The caller runs it after the dialog has closed.
std::shared_ptr<IOTAWizard> ChooseWizard(wxWindow* parent, TGalleryCategories& categories,
                                         const TRegistrations<IOTAWizard>& wizards);

}  // namespace kestrel::workbench
