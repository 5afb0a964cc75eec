#include "workbench/windows/Icons.h"

#include <array>
#include <initializer_list>
#include <string_view>

#include "system/Text.h"
#include "toolkit/WxText.h"

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

/// Each shape differs, so that nobody depends on its colour; the colours are readable on light and dark.
constexpr std::array kMarks{
    "",
    R"(<path d="M5 5.6a3 3 0 1 1 4.4 2.7c-1 .6-1.4 1-1.4 2.2" fill="none" stroke="#8490a0" stroke-width="2"/><circle cx="8" cy="13.4" r="1.3" fill="#8490a0"/>)",
    R"(<path d="M3 8.6l3.4 3.6L13 4.4" fill="none" stroke="#3f9b46" stroke-width="2.4"/>)",
    R"(<path d="M2.5 13.5l.8-3.6 7.4-7.4 2.8 2.8-7.4 7.4z" fill="#3b86d8"/>)",
    R"(<path d="M8 2v12M2.8 5l10.4 6M13.2 5L2.8 11" fill="none" stroke="#d2771a" stroke-width="2.2"/>)",
    R"(<path d="M8 14.2L2.6 8.4h3.2V2h4.4v6.4h3.2z" fill="#9a6fd0"/>)",
    R"(<circle cx="8" cy="5" r="3.1" fill="#c2568c"/><path d="M2.4 14.4a5.6 5.6 0 0 1 11.2 0z" fill="#c2568c"/>)",
    R"(<path d="M8 1.4l7.2 13H.8z" fill="#d8453a"/><path d="M8 5.6v4.4" stroke="#fff" stroke-width="1.8"/><circle cx="8" cy="12.2" r="1" fill="#fff"/>)",
};
static_assert(kMarks.size() == kFileMarks);

/// The shapes of an icon, without the enclosing element.
std::string_view ShapesOf(TIcon icon) {
  std::string_view svg = IconSvg(icon);
  svg.remove_prefix(svg.find('>') + 1);
  return svg.substr(0, svg.rfind('<'));
}

std::string_view ShapesOf(TFileMark mark) { return kMarks[static_cast<std::size_t>(mark)]; }

/// Pictures of kIconSize side by side.
wxBitmapBundle Row(std::initializer_list<std::string_view> pictures) {
  constexpr int kGap = 2;
  std::string shapes;
  int width = -kGap;
  for (const auto picture : pictures) {
    width += kGap;
    shapes += Format(R"svg(<g transform="translate(%d,0)">%s</g>)svg", {width + 0LL, std::string(picture)});
    width += kIconSize;
  }
  const std::string svg = Format(R"(<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d">%s</svg>)",
                                 {width + 0LL, kIconSize + 0LL, shapes});
  return wxBitmapBundle::FromSVG(svg.c_str(), wxSize(width, kIconSize));
}

}  // namespace

wxBitmapBundle RowImage(TFileMark mark, TIcon icon) { return Row({ShapesOf(mark), ShapesOf(icon)}); }

wxBitmapBundle TabImage(TFileMark mark, bool readOnly) {
  if (mark == TFileMark::Unknown) return readOnly ? IconBundle(TIcon::Lock) : wxBitmapBundle();
  return readOnly ? Row({ShapesOf(mark), ShapesOf(TIcon::Lock)}) : Row({ShapesOf(mark)});
}

wxString FileHint(const std::string& fileName, const TFileState& state) {
  return ToWx(state.Hint.empty() ? fileName : fileName + "\n" + state.Hint);
}

const char* IconSvg(TIcon icon) { return kSvg[static_cast<std::size_t>(icon)]; }

wxBitmapBundle IconBundle(TIcon icon) { return SvgBundle(IconSvg(icon), kIconSize); }

wxBitmapBundle SvgBundle(const std::string& svg, int size) {
  return wxBitmapBundle::FromSVG(svg.c_str(), wxSize(size, size));
}

}  // namespace kestrel::workbench
