// The switches with which the system starts a screen saver.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace startup {

enum class RunMode {
  Show,            // the saver display
  Configure,       // the settings dialog
  Preview,         // a picture in the control panel's little monitor
  ChangePassword,  // the system's password dialog
};

// The text behind the program's name and the blanks that follow it, otherwise as it was typed. The name may
// be quoted; without quotes it ends at the first blank, unless the line starts with the whole of
// `programPath` (in any case of letters), for some callers put a path with blanks there without quoting it.
std::string TextAfterProgramName(std::string_view commandLine, std::string_view programPath = {});

// By the first two characters of the text, trimmed of blanks, in any case of letters. What is no known switch
// shows the saver.
RunMode RunModeOf(std::string_view text);

// The window behind "/A": the number in all characters after the first two of the untrimmed text.
// No number gives 0.
std::intptr_t PasswordWindowOf(std::string_view text);

// The window behind "/P": the number in all characters after the first three (the switch and one separator)
// of the untrimmed text. No number gives 0, which is the whole screen; a number beyond 32 bits gives the end
// of their range, by which no window goes.
//
// Both count characters, not bytes, and skip the blanks of every script in front of the number. They count
// from where the text starts. TextAfterProgramName() leaves no blanks there; text from elsewhere with one
// blank in front still gives the window behind "/P" (the separator takes the blank's place), and 0 behind
// "/A".
std::intptr_t PreviewWindowOf(std::string_view text);

}  // namespace startup
