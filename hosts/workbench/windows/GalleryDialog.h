// File > New > Other: the wizards of the workbench and of packages, by category.
#pragma once

#include "workbench/model/Gallery.h"

class wxWindow;

namespace kestrel::workbench {

/// Lets the user choose a wizard; nullptr when he cancelled.  The caller runs it once the dialog is gone.
std::shared_ptr<IOTAWizard> ChooseWizard(wxWindow* parent, TGalleryCategories& categories,
                                         const TRegistrations<IOTAWizard>& wizards);

}  // namespace kestrel::workbench
