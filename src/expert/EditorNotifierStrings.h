// Texts of the editor and form notifiers.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sAddNotifierFailed{"AddNotifier failed"};
inline constexpr TResString sFormModuleNil{"Form notifier, Module is nil"};
inline constexpr TResString sFormEditorNil{"Form notifier, FormEditor is nil"};
inline constexpr TResString sFormAddNotifierFailed{"Form AddNotifier failed"};
inline constexpr TResString sFormActivatedNil{"FormActivated; FormEditor is nil"};

}  // namespace kestrel::addin
