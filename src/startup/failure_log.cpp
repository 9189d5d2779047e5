#include "startup/failure_log.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <optional>
#include <utility>

#include "os/paths.h"

namespace startup {

namespace {

std::string TimeText(const os::LocalTime& t) {
  char text[96];
  std::snprintf(text, sizeof(text), "%04d-%02d-%02d %02d:%02d:%02d", t.year, t.month, t.day, t.hour, t.minute,
                t.second);
  return text;
}

// A name that holds control characters must not make lines of its own.
std::string OnOneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](unsigned char c) { return c < 0x20; }, '?');
  return text;
}

// The younger half, from the start of a line.
std::string YoungerHalf(const std::string& content) {
  const std::size_t lineEnd = content.find('\n', content.size() / 2);
  return lineEnd == std::string::npos ? std::string() : content.substr(lineEnd + 1);
}

}  // namespace

FailureLog::FailureLog(os::Files& files, const os::Clock& clock, const std::string& programFolder)
    : files_(files), clock_(clock), path_(os::JoinPath(programFolder, "lumora.log")) {}

void FailureLog::note(const std::string& failure) noexcept {
  note([failure] { return failure; });
}

void FailureLog::note(std::function<std::string()> say) noexcept {
  try {
    if (state_ == State::On && noted_.size() < kMostLines) {
      if (const std::string line = newLine(clock_.now(), say()); !line.empty()) write(line);
    } else if (state_ == State::Undecided && waiting_.size() < kMostLines) {
      waiting_.push_back({clock_.now(), std::move(say)});
    }
  } catch (const std::exception&) {
    state_ = State::Off;  // without memory there is no log
  }
}

void FailureLog::decide(const std::string& setting) noexcept {
  try {
    state_ = setting == "1" ? State::On : State::Off;
    const std::vector<Waiting> waiting = std::exchange(waiting_, {});
    if (state_ == State::Off) return;
    std::string lines;
    for (const Waiting& each : waiting) lines += newLine(each.when, each.say());
    if (!lines.empty()) write(lines);
  } catch (const std::exception&) {
    state_ = State::Off;
  }
}

// Empty for what has been noted before, and beyond the most lines of one show.
std::string FailureLog::newLine(const os::LocalTime& when, const std::string& failure) {
  if (noted_.size() >= kMostLines || !noted_.insert(failure).second) return {};
  return TimeText(when) + " " + OnOneLine(failure) + "\r\n";
}

void FailureLog::write(const std::string& lines) {
  std::optional<std::string> content = files_.read(path_);
  if (!content && files_.exists(path_)) return;  // in use: what it holds is worth more than this line
  std::string whole = content.value_or(std::string()) + lines;
  while (whole.size() > kMostBytes) whole = YoungerHalf(whole);
  files_.replace(path_, whole);
}

}  // namespace startup
