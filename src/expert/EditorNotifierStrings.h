// Texts of the editor and form notifiers.
#pragma once

#include "host/Text.h"

constexpr TResString sAddNotifierFailed{"AddNotifier failed"};
constexpr TResString sFormModuleNil{"Form notifier, Module is nil"};
constexpr TResString sFormEditorNil{"Form notifier, FormEditor is nil"};
constexpr TResString sFormAddNotifierFailed{"Form AddNotifier failed"};
constexpr TResString sFormActivatedNil{"FormActivated; FormEditor is nil"};
