#include "startup/command_line.h"

#include <gtest/gtest.h>

using startup::PasswordWindowOf;
using startup::PreviewWindowOf;
using startup::RunMode;
using startup::RunModeOf;
using startup::TextAfterProgramName;

TEST(CommandLine, EveryFormThatPeopleAndTheSystemUseReachesItsMode) {
  EXPECT_EQ(RunModeOf("/s"), RunMode::Show);
  EXPECT_EQ(RunModeOf("/S"), RunMode::Show);
  EXPECT_EQ(RunModeOf(" /S "), RunMode::Show);
  EXPECT_EQ(RunModeOf("   /s   "), RunMode::Show);
  EXPECT_EQ(RunModeOf("/c"), RunMode::Configure);
  EXPECT_EQ(RunModeOf("/C"), RunMode::Configure);
  EXPECT_EQ(RunModeOf("/c:1234"), RunMode::Configure);
  EXPECT_EQ(RunModeOf("/C 1234"), RunMode::Configure);
  EXPECT_EQ(RunModeOf("  /c"), RunMode::Configure);
  EXPECT_EQ(RunModeOf("/p 4711"), RunMode::Preview);
  EXPECT_EQ(RunModeOf("/P:4711"), RunMode::Preview);
  EXPECT_EQ(RunModeOf(" /p 4711"), RunMode::Preview);
  EXPECT_EQ(RunModeOf("/a 4711"), RunMode::ChangePassword);
  EXPECT_EQ(RunModeOf("/A 4711"), RunMode::ChangePassword);
}

TEST(CommandLine, NoSwitchOrAnUnknownTextRunsTheSaver) {
  EXPECT_EQ(RunModeOf(""), RunMode::Show);
  EXPECT_EQ(RunModeOf("    "), RunMode::Show);
  EXPECT_EQ(RunModeOf("xyz"), RunMode::Show);
  EXPECT_EQ(RunModeOf("-s"), RunMode::Show);
  EXPECT_EQ(RunModeOf("-c"), RunMode::Show);
  EXPECT_EQ(RunModeOf("/"), RunMode::Show);
  EXPECT_EQ(RunModeOf("/ c"), RunMode::Show);
  EXPECT_EQ(RunModeOf("\"/c\""), RunMode::Show);
  EXPECT_EQ(RunModeOf("ÄÖÜ"), RunMode::Show);
}

TEST(CommandLine, OnlyTheFirstTwoCharactersCount) {
  EXPECT_EQ(RunModeOf("/S123"), RunMode::Show);
  EXPECT_EQ(RunModeOf("/SCREEN"), RunMode::Show);
  EXPECT_EQ(RunModeOf("/screen"), RunMode::Show);
  EXPECT_EQ(RunModeOf("/close"), RunMode::Configure);
  EXPECT_EQ(RunModeOf("/play"), RunMode::Preview);
  EXPECT_EQ(RunModeOf("/S /C"), RunMode::Show);
}

TEST(CommandLine, ThePreviewsWindowStandsBehindTheSwitchAndOneSeparator) {
  EXPECT_EQ(PreviewWindowOf("/p 4711"), 4711);
  EXPECT_EQ(PreviewWindowOf("/P:4711"), 4711);
  EXPECT_EQ(PreviewWindowOf("/p    4711"), 4711);
  EXPECT_EQ(PreviewWindowOf("/p 4711   "), 4711);
  EXPECT_EQ(PreviewWindowOf("/p 4711x"), 4711);
  EXPECT_EQ(PreviewWindowOf("/p4711"), 711) << "the third character is taken for the separator";
}

TEST(CommandLine, ThePasswordsWindowStandsBehindTheFirstTwoCharacters) {
  EXPECT_EQ(PasswordWindowOf("/A 1234"), 1234);
  EXPECT_EQ(PasswordWindowOf("/a 4711"), 4711);
  EXPECT_EQ(PasswordWindowOf("/a4711"), 4711);
  EXPECT_EQ(PasswordWindowOf("/a:4711"), 0) << "a colon is no part of a number";
}

TEST(CommandLine, ASwitchWithoutANumberGivesWindowZero) {
  EXPECT_EQ(PreviewWindowOf("/p"), 0);
  EXPECT_EQ(PreviewWindowOf("/p "), 0);
  EXPECT_EQ(PreviewWindowOf("/p abc"), 0);
  EXPECT_EQ(PreviewWindowOf(""), 0);
  EXPECT_EQ(PasswordWindowOf("/a"), 0);
  EXPECT_EQ(PasswordWindowOf("/"), 0);
  EXPECT_EQ(PasswordWindowOf("/a xyz"), 0);
}

TEST(CommandLine, WindowsAreTakenFromTheTextAsItWasTyped) {
  EXPECT_EQ(PreviewWindowOf(" /p 4711"), 4711) << "the blank in front stands in for the separator";
  EXPECT_EQ(PreviewWindowOf("  /p 4711"), 0);
  EXPECT_EQ(PasswordWindowOf(" /a 4711"), 0);
}

TEST(CommandLine, HandlesHave32BitsThatCount) {
  EXPECT_EQ(PreviewWindowOf("/p 2147483647"), 2147483647);
  EXPECT_EQ(PreviewWindowOf("/p 4294967295"), -1) << "the system writes handles without a sign";
  EXPECT_EQ(PreviewWindowOf("/p 2147483648"), -2147483648LL);
  EXPECT_EQ(PreviewWindowOf("/p -5"), -5);
}

TEST(CommandLine, ANumberTooLargeForAHandleIsNeverTheWholeScreen) {
  EXPECT_NE(PreviewWindowOf("/p 4294967296"), 0);
  EXPECT_NE(PreviewWindowOf("/p 99999999999999999999999999"), 0);
  EXPECT_NE(PreviewWindowOf("/p -99999999999999999999999999"), 0);
  EXPECT_NE(PreviewWindowOf("/p " + std::string(5000, '9')), 0);
}

TEST(CommandLine, TheTextStartsBehindTheProgramsNameAndTheBlanksThatFollow) {
  EXPECT_EQ(TextAfterProgramName("C:\\L\\Lumora.scr /s"), "/s");
  EXPECT_EQ(TextAfterProgramName("C:\\L\\Lumora.scr     /p 4711  "), "/p 4711  ");
  EXPECT_EQ(TextAfterProgramName("C:\\L\\Lumora.scr\t/c"), "/c");
  EXPECT_EQ(TextAfterProgramName("\"C:\\My Savers\\Lumora.scr\" /s"), "/s");
  EXPECT_EQ(TextAfterProgramName("\"C:\\My Savers\\Lumora.scr\"/s"), "/s");
  EXPECT_EQ(TextAfterProgramName("C:\\\"My Savers\"\\Lumora.scr /c:12"), "/c:12");
  EXPECT_EQ(TextAfterProgramName("Lumora.scr"), "");
  EXPECT_EQ(TextAfterProgramName("\"C:\\Lumora.scr\""), "");
  EXPECT_EQ(TextAfterProgramName("\"C:\\Lumora.scr /s"), "") << "a quote that nobody closes";
  EXPECT_EQ(TextAfterProgramName("\""), "");
  EXPECT_EQ(TextAfterProgramName(""), "");
}

TEST(CommandLine, AnUnquotedPathWithBlanksIsKnownByTheProgramsOwnPath) {
  const char* path = "C:\\My Savers\\Lumora Show.scr";
  EXPECT_EQ(TextAfterProgramName("C:\\My Savers\\Lumora Show.scr /p 4711", path), "/p 4711");
  EXPECT_EQ(TextAfterProgramName("c:\\MY SAVERS\\lumora show.SCR /c", path), "/c");
  EXPECT_EQ(TextAfterProgramName("C:\\My Savers\\Lumora Show.scr", path), "");
  EXPECT_EQ(TextAfterProgramName("C:\\My Savers\\Lumora Show.scr2 /c", path), "Savers\\Lumora Show.scr2 /c");
  EXPECT_EQ(TextAfterProgramName("C:\\MYSAVE~1\\LUMORA~1.SCR /s", path), "/s");
  EXPECT_EQ(TextAfterProgramName("\"C:\\My Savers\\Lumora Show.scr\" /s", path), "/s");
}

TEST(CommandLine, HandlesAreFoundBehindTheBlanksOfEveryScript) {
  EXPECT_EQ(PreviewWindowOf("/p\xE3\x80\x80"
                            "4711"),
            4711)
      << "a full-width space separates";
  EXPECT_EQ(PreviewWindowOf("/p \xC2\xA0\xE2\x80\x83"
                            "4711"),
            4711);
  EXPECT_EQ(PasswordWindowOf("/a\xE3\x80\x80\xC2\xA0"
                             "4711"),
            4711);
  EXPECT_EQ(PreviewWindowOf("/\xD0\xBF:4711"), 4711) << "two letters and a separator, however many bytes";
  EXPECT_EQ(PreviewWindowOf("/p:\xFF"
                            "4711"),
            0)
      << "a broken byte is no blank";
}
