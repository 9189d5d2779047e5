// Bare programs that show one thing on a full-screen window and end at a key: what any show costs at least.
#pragma once

#include <string>

namespace bench {

// A filled window.
int RunBareWindow();

// The picture of a file, decoded by the platform before anything else is done and shown at once, as a viewer
// that does nothing more would. `path` is a Windows path in UTF-8.
int RunBareViewer(const std::string& path);

// Class of the bare programs' window.
inline constexpr const wchar_t* kBareWindowClass = L"LumoraBenchBareWindow";

}  // namespace bench
