#include "ui/MenuImages.h"

#include <algorithm>
#include <cassert>

#include "ui/ExpertMainMenuStrings.h"

namespace kestrel::addin {

constexpr TResString sUnnamed{""};

// Flat shapes in the colours of the windows' icons.  Edges are on whole units, so that they are sharp at 100 % and 200 %;
// medium brightness suits light and dark menus.
constexpr std::array<TMenuImage, 11> MenuImageList{{
    // Arrow into a tray.
    {1, sSCC0,
     R"(<path d="M1 9h2v4h10V9h2v6H1z" fill="#758290"/>)"
     R"(<path d="M7 1h2v5h3l-4 5-4-5h3z" fill="#2f6fb7"/>)"},
    // Arrow out of a tray.
    {2, sSCC1,
     R"(<path d="M1 9h2v4h10V9h2v6H1z" fill="#758290"/>)"
     R"(<path d="M8 1l4 5H9v5H7V6H4z" fill="#2f8f4e"/>)"},
    // A list with a tick.
    {3, sSCC2,
     R"(<path d="M1 2h14v2H1z M1 7h8v2H1z M1 12h5v2H1z" fill="#758290"/>)"
     R"(<path d="M7 10l3 3 4-5" fill="none" stroke="#2f8f4e" stroke-width="2"/>)"},
    // Arrow into a folder.
    {4, sSCC3,
     R"(<path d="M1 4h5l2 2h7v9H1z" fill="#e9a60c"/>)"
     R"(<path d="M7 1h2v7h3l-4 5-4-5h3z" fill="#2f6fb7"/>)"},
    // Arrow out of a folder.
    {5, sSCC4,
     R"(<path d="M1 4h5l2 2h7v9H1z" fill="#e9a60c"/>)"
     R"(<path d="M8 1l4 5H9v7H7V6H4z" fill="#2f6fb7"/>)"},
    // A file with a minus sign.
    {6, sSCC5,
     R"(<path d="M2 1h7l3 3v10H2z" fill="#758290"/>)"
     R"(<path d="M4 5h6v1H4z M4 8h4v1H4z" fill="#ffffff"/>)"
     R"(<circle cx="11" cy="11" r="4" fill="#c8322b"/>)"
     R"(<path d="M9 10h4v2H9z" fill="#ffffff"/>)"},
    // A window with a start symbol.
    {7, sSCC6,
     R"(<rect x="1" y="2" width="14" height="12" rx="2" fill="#2f6fb7"/>)"
     R"(<path d="M3 4h10v1H3z M6 6l5 3-5 3z" fill="#ffffff"/>)"},
    // An arrow back.
    {8, sSCC7,
     R"(<path d="M1 6l5-5v10z" fill="#e9a60c"/>)"
     R"(<path d="M5 6h5a4 4 0 0 1 0 8H5" fill="none" stroke="#e9a60c" stroke-width="2"/>)"},
    // A file with an arrow down.
    {9, sSCC8,
     R"(<path d="M2 1h7l3 3v10H2z" fill="#758290"/>)"
     R"(<path d="M4 5h6v1H4z M4 8h4v1H4z" fill="#ffffff"/>)"
     R"(<circle cx="11" cy="11" r="4" fill="#2f8f4e"/>)"
     R"(<path d="M10 8h2v3h2l-3 3-3-3h2z" fill="#ffffff"/>)"},
    // Two files side by side.
    {18, sUnnamed,
     R"(<path d="M1 2h6v12H1z" fill="#2f6fb7"/>)"
     R"(<path d="M9 2h6v12H9z" fill="#2f8f4e"/>)"
     R"(<path d="M2 4h4v1H2z M2 7h2v1H2z M2 10h4v1H2z M10 4h4v1h-4z M10 7h4v1h-4z M10 10h2v1h-2z" fill="#ffffff"/>)"},
    // A clock.
    {19, sUnnamed,
     R"(<circle cx="8" cy="8" r="7" fill="#2f6fb7"/>)"
     R"(<path d="M7 3h2v4h3v2H7z" fill="#ffffff"/>)"},
}};

static_assert(std::ranges::adjacent_find(MenuImageList, std::ranges::greater_equal{}, &TMenuImage::Index) ==
              MenuImageList.end());

std::string MenuImageDocument(int index) {
  const auto image = std::ranges::lower_bound(MenuImageList, index, {}, &TMenuImage::Index);
  assert(image != MenuImageList.end() && image->Index == index);
  const std::string name = image->Name;
  return Format(
      R"(<svg xmlns="http://www.w3.org/2000/svg"%s width="16" height="16" viewBox="0 0 16 16">%s</svg>)",
      {name.empty() ? name : Format(R"( id="%s")", {name}), image->Drawing});
}

}  // namespace kestrel::addin
