#include <windows.h>

#include <filesystem>

#include "package/files.h"

namespace package {

namespace {

std::wstring Variable(const wchar_t* name) {
  wchar_t text[MAX_PATH] = {};
  GetEnvironmentVariableW(name, text, MAX_PATH);
  return text;
}

}  // namespace

std::wstring ProfileFolder() { return Variable(L"USERPROFILE"); }

std::wstring TemporaryFolder() {
  wchar_t path[MAX_PATH] = {};
  wchar_t whole[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, path);
  GetLongPathNameW(path, whole, MAX_PATH);
  std::wstring folder = whole;
  while (!folder.empty() && folder.back() == L'\\') folder.pop_back();
  return folder;
}

bool Exists(const std::wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

std::string ReadWholeFile(const std::wstring& path) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return "(cannot be read)";
  std::string text(static_cast<std::size_t>(GetFileSize(file, nullptr)), '\0');
  DWORD got = 0;
  ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &got, nullptr);
  CloseHandle(file);
  text.resize(got);
  return text;
}

void WriteWholeFile(const std::wstring& path, const std::string& content) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  DWORD written = 0;
  WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
  CloseHandle(file);
}

bool Move(const std::wstring& from, const std::wstring& to) {
  return MoveFileW(from.c_str(), to.c_str()) != FALSE;
}

void RemoveFile(const std::wstring& path) { DeleteFileW(path.c_str()); }

std::vector<std::wstring> NamesIn(const std::wstring& folder) {
  std::vector<std::wstring> names;
  std::error_code ignored;
  for (const auto& entry : std::filesystem::directory_iterator(folder, ignored))
    names.push_back(entry.path().filename().wstring());
  return names;
}

void RemoveTree(const std::wstring& folder) {
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
}

}  // namespace package
