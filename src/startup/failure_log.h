// What failed in the show, as lines of a file beside the settings, for those who ask for it.
#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "os/clock.h"
#include "os/files.h"

namespace startup {

// Off unless the settings ask for it. A line is the local time and what failed; the same failure is written
// once in a show. A folder that cannot be written is nobody's concern: no failure of the log is reported.
class FailureLog {
 public:
  static constexpr std::size_t kMostBytes = 256 << 10;  // of the file; beyond, its older half goes
  static constexpr std::size_t kMostLines = 1000;       // of one show

  FailureLog(os::Files& files, const os::Clock& clock, const std::string& programFolder);

  // Never throws. What comes before decide() waits for it.
  void note(const std::string& failure) noexcept;

  // The same for a line that costs something to say: `say` is asked only once the log is on.
  void note(std::function<std::string()> say) noexcept;

  // `setting` is what the settings say: "1" = write.
  void decide(const std::string& setting) noexcept;

 private:
  enum class State { Undecided, Off, On };

  struct Waiting {
    os::LocalTime when;
    std::function<std::string()> say;
  };

  std::string newLine(const os::LocalTime& when, const std::string& failure);
  void write(const std::string& lines);

  os::Files& files_;
  const os::Clock& clock_;
  std::string path_;
  State state_ = State::Undecided;
  std::set<std::string> noted_;
  std::vector<Waiting> waiting_;  // what came before the decision
};

}  // namespace startup
