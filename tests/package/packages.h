// What is tested.
#pragma once

#include <string>

namespace package {

struct Packages {
  std::wstring setup;
  std::wstring laterSetup;
  std::wstring version;
  std::wstring laterVersion;
  std::wstring unpacked;
};
extern Packages packages;

}  // namespace package
