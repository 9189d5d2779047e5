// Files and folders of the user, by Windows paths.
#pragma once

#include <string>
#include <vector>

namespace package {

std::wstring ProfileFolder();
std::wstring TemporaryFolder();

bool Exists(const std::wstring& path);
std::string ReadWholeFile(const std::wstring& path);
void WriteWholeFile(const std::wstring& path, const std::string& content);

// Moves a file, or a folder with all that is in it, on the same drive.
bool Move(const std::wstring& from, const std::wstring& to);
// The files and folders in a folder.
std::vector<std::wstring> NamesIn(const std::wstring& folder);
void RemoveFile(const std::wstring& path);
// A folder with all that is in it, where there is one.
void RemoveTree(const std::wstring& folder);

}  // namespace package
