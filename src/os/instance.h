// The mark that one copy of the program is running in the user's session.
#pragma once

namespace os {

class Instance {
 public:
  virtual ~Instance() = default;

  // Sets the mark; false when another copy has set it already. Holds until release() or the end of the
  // process, however that comes about.
  virtual bool becomeOnly() = 0;

  // Lets another copy start. Does nothing when the mark is not held.
  virtual void release() = 0;
};

}  // namespace os
