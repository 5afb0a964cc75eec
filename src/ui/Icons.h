// Icons of the windows: SVG documents, one array per image list.  The index is the ordinal of the kind.
#pragma once

#include <array>

namespace kestrel::addin {

/// Icons of message window lines, in the order of TMsgWinType: information, warning, error, status.
inline constexpr int kLineIconSize = 16;
inline constexpr std::array kLineIcons{
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16">
<circle cx="8" cy="8" r="7" fill="#2f6fb7"/>
<path d="M7 7h2v5H7z M7 4h2v2H7z" fill="#ffffff"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16">
<path d="M8 1.5 15.5 14.5H.5z" fill="#e9a60c" stroke="#e9a60c" stroke-linejoin="round"/>
<path d="M7 5h2v5H7z M7 11h2v2H7z" fill="#ffffff"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16">
<circle cx="8" cy="8" r="7" fill="#c8322b"/>
<path d="M5 5 11 11 M11 5 5 11" fill="none" stroke="#ffffff" stroke-width="2"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16">
<rect x="2" y="1" width="12" height="14" rx="2" fill="#66737f"/>
<path d="M4 4h8v1H4z M4 7h8v1H4z M4 10h5v1H4z" fill="#ffffff"/></svg>)"};

/// Icons of message dialogs, in the order of TMsgType: error, warning, information, question.
inline constexpr int kDialogIconSize = 32;
inline constexpr std::array kDialogIcons{
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32">
<circle cx="16" cy="16" r="15" fill="#c8322b"/>
<path d="M10 10 22 22 M22 10 10 22" fill="none" stroke="#ffffff" stroke-width="3.5" stroke-linecap="round"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32">
<path d="M16 3 30 28.5H2z" fill="#e9a60c" stroke="#e9a60c" stroke-width="3" stroke-linejoin="round"/>
<path d="M16 11V19" fill="none" stroke="#ffffff" stroke-width="3.5" stroke-linecap="round"/>
<circle cx="16" cy="24.5" r="2.2" fill="#ffffff"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32">
<circle cx="16" cy="16" r="15" fill="#2f6fb7"/>
<path d="M16 15V23" fill="none" stroke="#ffffff" stroke-width="3.5" stroke-linecap="round"/>
<circle cx="16" cy="9" r="2.2" fill="#ffffff"/></svg>)",
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32">
<circle cx="16" cy="16" r="15" fill="#2f6fb7"/>
<path d="M11.5 12.5C11.5 6.5 20.5 6.5 20.5 12 C20.5 15.5 16 15.5 16 19" fill="none" stroke="#ffffff" stroke-width="3.2" stroke-linecap="round"/>
<circle cx="16" cy="24" r="2.2" fill="#ffffff"/></svg>)"};

}  // namespace kestrel::addin
