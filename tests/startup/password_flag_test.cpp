#include "startup/password_flag.h"

#include <gtest/gtest.h>

#include "support/fake_machine.h"

using startup::PasswordFlagNumber;
using startup::PasswordFlagText;

namespace {

os::RegistryValue Number(std::string bytes) { return {os::kRegistryNumber, std::move(bytes)}; }
os::RegistryValue Text(std::string bytes) { return {os::kRegistryText, std::move(bytes)}; }

}  // namespace

TEST(PasswordFlag, ANumberHasAtLeastThreeDigits) {
  EXPECT_EQ(PasswordFlagText(Number(std::string("\x01\x00\x00\x00", 4))), "001");
  EXPECT_EQ(PasswordFlagText(Number(std::string("\x00\x00\x00\x00", 4))), "000");
  EXPECT_EQ(PasswordFlagText(Number(std::string("\x0C\x00\x00\x00", 4))), "012");
  EXPECT_EQ(PasswordFlagText(Number(std::string("\xE8\x03\x00\x00", 4))), "1000");
}

TEST(PasswordFlag, ANumberIsBuiltFromItsLeastSignificantByteOn) {
  EXPECT_EQ(PasswordFlagText(Number(std::string("\x01\x02\x03\x04", 4))), "67305985");
  EXPECT_EQ(PasswordFlagText(Number(std::string("\xFF\xFF\xFF\xFF", 4))), "4294967295");
  EXPECT_EQ(PasswordFlagText(Number(std::string("\x07", 1))), "007") << "bytes that are missing";
  EXPECT_EQ(PasswordFlagText(Number("")), "000");
}

TEST(PasswordFlag, ATextLosesItsTerminatingNulAlone) {
  EXPECT_EQ(PasswordFlagText(Text(std::string("1\0", 2))), "1");
  EXPECT_EQ(PasswordFlagText(Text("1")), "1") << "stored without a NUL";
  EXPECT_EQ(PasswordFlagText(Text(std::string(" 1 \0", 4))), " 1 ");
  EXPECT_EQ(PasswordFlagText(Text(std::string("\0", 1))), "");
  EXPECT_EQ(PasswordFlagText(Text("")), "");
  EXPECT_EQ(PasswordFlagText({os::kRegistryExpandableText, std::string("1\0", 2)}), "1");
}

TEST(PasswordFlag, OtherTypesAreNoFlag) {
  EXPECT_EQ(PasswordFlagText({3, "1"}), "");
  EXPECT_EQ(PasswordFlagText({7, "1"}), "");
  EXPECT_EQ(PasswordFlagText({0, "1"}), "");
}

TEST(PasswordFlag, IsReadFromTheDesktopKeyOfTheUser) {
  support::FakeMachine machine;
  EXPECT_EQ(startup::ReadPasswordFlag(machine.facts), "");
  machine.facts.values[{"Control Panel\\Desktop", "ScreenSaveUsePassword"}] =
      Number(std::string("\x01\x00\x00\x00", 4));
  EXPECT_EQ(startup::ReadPasswordFlag(machine.facts), "001");
}

TEST(PasswordFlag, SwitchesThePasswordOnByAnyLeadingNumber) {
  EXPECT_EQ(PasswordFlagNumber("1"), 1);
  EXPECT_EQ(PasswordFlagNumber("001"), 1);
  EXPECT_EQ(PasswordFlagNumber(" 1"), 1);
  EXPECT_EQ(PasswordFlagNumber("1 yes"), 1);
  EXPECT_EQ(PasswordFlagNumber("-1"), -1);
}

TEST(PasswordFlag, ZeroOrNoNumberSwitchesItOff) {
  EXPECT_EQ(PasswordFlagNumber(""), 0);
  EXPECT_EQ(PasswordFlagNumber("0"), 0);
  EXPECT_EQ(PasswordFlagNumber("000"), 0);
  EXPECT_EQ(PasswordFlagNumber("yes"), 0);
  EXPECT_EQ(PasswordFlagNumber("True"), 0);
}

TEST(PasswordFlag, AFlagTooLargeFor16BitsIsStillOn) {
  EXPECT_EQ(PasswordFlagNumber("65536"), 32767);
  EXPECT_EQ(PasswordFlagNumber("4294967295"), 32767);
  EXPECT_EQ(PasswordFlagNumber("-40000"), -32768);
}
