// All that an installation could leave behind: the user's registry and folders.
#pragma once

#include <map>
#include <string>

namespace package {

// Registry values by "key\name" and files by path, each with what is in it; keys and folders with nothing.
using UserState = std::map<std::wstring, std::string>;

// The user's whole part of the registry, the list of apps of all users, and the user's folders except the one
// for temporary files.
UserState ReadUserState();

// What is in one and not, or otherwise, in the other, line by line; empty when they are the same.
std::string Difference(const UserState& before, const UserState& after);

}  // namespace package
