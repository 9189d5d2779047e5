// Files and folders of the user, by Windows paths.
#pragma once

#include <string>

namespace package {

std::wstring ProfileFolder();
std::wstring TemporaryFolder();

bool Exists(const std::wstring& path);
std::string ReadWholeFile(const std::wstring& path);
void WriteWholeFile(const std::wstring& path, const std::string& content);

// Moves a file, or a folder with all that is in it, on the same drive.
bool Move(const std::wstring& from, const std::wstring& to);
void RemoveFile(const std::wstring& path);
// An empty folder.
void RemoveFolder(const std::wstring& path);

}  // namespace package
