// The pictures of the "Team" menu.
#pragma once

#include <array>
#include <string>

#include "system/Text.h"

namespace kestrel::addin {

/// One picture.  Two commands may share one, and not every index is taken.
struct TMenuImage {
  int Index;
  TResString Name;      ///< its document's id, by which a theme of the host can tell it; empty for none
  const char* Drawing;  ///< SVG elements on a field of 16 by 16 units
};

/// Rising by index.
extern const std::array<TMenuImage, 11> MenuImageList;

/// The document of the picture with that index, as the host's image list takes it.  The index must be in the list.
std::string MenuImageDocument(int index);

}  // namespace kestrel::addin
