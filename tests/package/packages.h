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
  std::string settings;  // the settings file of the ZIP as it came, before the program ran there
};
extern Packages packages;

}  // namespace package
