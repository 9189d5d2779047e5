// Where the system looks for libraries that are loaded by name.
#pragma once

namespace os {

// From now on in the system's folder alone, so that no library beside the program or in the current folder
// stands in for one of the system's. Windows 7 knows this from its update KB2533623 on; without it nothing
// changes.
void LoadLibrariesFromSystemFolderOnly();

}  // namespace os
