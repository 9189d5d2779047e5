// Texts and numbers in the user's part of the registry.
#pragma once

#include <optional>
#include <string>

namespace package {

inline constexpr const wchar_t* kAppKey = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Lumora";
inline constexpr const wchar_t* kDesktopKey = L"Control Panel\\Desktop";

// Nothing when there is no such value.
std::optional<std::wstring> ReadText(const wchar_t* key, const wchar_t* name);
std::optional<unsigned> ReadNumber(const wchar_t* key, const wchar_t* name);

// Without a text the value is removed.
void WriteText(const wchar_t* key, const wchar_t* name, const std::optional<std::wstring>& text);

bool HasKey(const wchar_t* key);
void RemoveKey(const wchar_t* key);

}  // namespace package
