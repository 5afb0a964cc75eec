// The icons of the "Team" menu.
#pragma once

#include <array>
#include <string>

#include "system/Text.h"

namespace kestrel::addin {

/// One icon.  Commands may share icons, and indexes need not be consecutive.
struct TMenuImage {
  int Index;
  TResString Name;      ///< the id of the SVG document, for themes of the host; may be empty
  const char* Drawing;  ///< SVG elements, 16 by 16 units
};

/// Sorted by index.
extern const std::array<TMenuImage, 11> MenuImageList;

/// The icon with that index as an SVG document.  The index must be in the list.
std::string MenuImageDocument(int index);

}  // namespace kestrel::addin
