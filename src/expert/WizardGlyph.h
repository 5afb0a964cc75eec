// The pull-project wizard's picture in the gallery: an SVG document of 32 by 32 units.
#pragma once

namespace kestrel::addin {

inline constexpr const char* kPullProjectGlyph =
    R"(<svg xmlns="http://www.w3.org/2000/svg" id="PullProjectIcon" width="32" height="32" viewBox="0 0 32 32">)"
    R"(<path d="M2 8a2 2 0 0 1 2-2h8l4 4h12a2 2 0 0 1 2 2v16a2 2 0 0 1-2 2H4a2 2 0 0 1-2-2z" fill="#e9a60c"/>)"
    R"(<path d="M14 2h4v14h6l-8 10-8-10h6z" fill="#2f6fb7"/>)"
    R"(</svg>)";

}  // namespace kestrel::addin
