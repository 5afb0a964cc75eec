#include "workbench/windows/Icons.h"

#include <array>

namespace kestrel::workbench {

namespace {

constexpr int kIconSize = 16;

// In the order of TIcon.
constexpr std::array kSvg{
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16"><rect x="1" y="2" width="9" height="8" rx="1" fill="#7a8ca5"/><rect x="5" y="6" width="10" height="8" rx="1" fill="#3b6ea8"/><path d="M7 9h6M7 11.5h4" stroke="#fff" stroke-width="1.2"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16"><rect x="1.5" y="2.5" width="13" height="11" rx="1.5" fill="#7a8ca5"/><path d="M4 6h8M4 9h5" stroke="#fff" stroke-width="1.3"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16"><rect x="1.5" y="2.5" width="13" height="11" rx="1.5" fill="#3b6ea8"/><path d="M6 5l5 3-5 3z" fill="#fff"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16"><path d="M3 1.5h7l3 3v10H3z" fill="#fff" stroke="#5b6b80"/><path d="M5 7h6M5 9.5h6M5 12h4" stroke="#3b6ea8"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16"><rect x="1.5" y="2.5" width="13" height="11" fill="#fff" stroke="#5b6b80"/><rect x="1.5" y="2.5" width="13" height="3" fill="#3b6ea8"/><rect x="8" y="9.5" width="5" height="2.5" fill="#b9c7d8"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16"><path d="M3 1.5h7l3 3v10H3z" fill="#eef1f5" stroke="#8a97a8"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16"><path d="M5 7V5a3 3 0 0 1 6 0v2" fill="none" stroke="#8a6d1d" stroke-width="1.6"/><rect x="3" y="7" width="10" height="7" rx="1" fill="#d9a520"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16"><rect x="1" y="1" width="14" height="14" rx="3" fill="#27496d"/><path d="M3.5 5l2 6 2.5-5 2.5 5 2-6" fill="none" stroke="#fff" stroke-width="1.6"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32"><path d="M6 3h14l6 6v20H6z" fill="#fff" stroke="#5b6b80" stroke-width="1.5"/><path d="M10 14h12M10 19h12M10 24h8" stroke="#3b6ea8" stroke-width="2"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32"><rect x="3" y="6" width="26" height="21" rx="3" fill="#3b6ea8"/><path d="M12 11l9 5.5-9 5.5z" fill="#fff"/></svg>)",
};

}  // namespace

const char* IconSvg(TIcon icon) { return kSvg[static_cast<std::size_t>(icon)]; }

wxBitmapBundle IconBundle(TIcon icon) { return SvgBundle(IconSvg(icon), kIconSize); }

wxBitmapBundle SvgBundle(const std::string& svg, int size) {
  return wxBitmapBundle::FromSVG(svg.c_str(), wxSize(size, size));
}

}  // namespace kestrel::workbench
