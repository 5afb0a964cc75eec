// The picture of the pull-project wizard in the gallery: an SVG document of 32 by 32 units.
#pragma once

inline constexpr const char* kPullProjectGlyph =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32">)"
    R"(<path d="M4 21v7h24v-7" fill="none" stroke="#3b5b8c" stroke-width="2.5" stroke-linejoin="round" stroke-linecap="round"/>)"
    R"(<path d="M16 3v17M9 13.5l7 7 7-7" fill="none" stroke="#2f8f4e" stroke-width="3" stroke-linecap="round" stroke-linejoin="round"/>)"
    R"(</svg>)";
