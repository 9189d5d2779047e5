#include <windows.h>

#include "package/user_registry.h"

namespace package {

std::optional<std::wstring> ReadText(const wchar_t* key, const wchar_t* name) {
  wchar_t text[1024] = {};
  DWORD bytes = sizeof(text);
  if (RegGetValueW(HKEY_CURRENT_USER, key, name, RRF_RT_REG_SZ, nullptr, text, &bytes) != ERROR_SUCCESS)
    return {};
  return text;
}

std::optional<unsigned> ReadNumber(const wchar_t* key, const wchar_t* name) {
  DWORD number = 0;
  DWORD bytes = sizeof(number);
  if (RegGetValueW(HKEY_CURRENT_USER, key, name, RRF_RT_REG_DWORD, nullptr, &number, &bytes) != ERROR_SUCCESS)
    return {};
  return number;
}

void WriteText(const wchar_t* key, const wchar_t* name, const std::optional<std::wstring>& text) {
  if (!text) {
    RegDeleteKeyValueW(HKEY_CURRENT_USER, key, name);
    return;
  }
  RegSetKeyValueW(HKEY_CURRENT_USER, key, name, REG_SZ, text->c_str(),
                  static_cast<DWORD>((text->size() + 1) * sizeof(wchar_t)));
}

bool HasKey(const wchar_t* key) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, key, 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
  RegCloseKey(opened);
  return true;
}

void RemoveKey(const wchar_t* key) { RegDeleteTreeW(HKEY_CURRENT_USER, key); }

}  // namespace package
