// Strict number forms beside the platform's automation conversions, in the American locale.
#include <gtest/gtest.h>
#include <windows.h>

#include <oleauto.h>

#include <optional>

#include "base/errors.h"
#include "base/number_text.h"

namespace {

constexpr LCID kAmerican = 0x409;

std::optional<double> Automation(const wchar_t* text) {
  double value = 0;
  if (VarR8FromStr(const_cast<wchar_t*>(text), kAmerican, 0, &value) != S_OK) return std::nullopt;
  return value;
}

std::optional<double> Ours(const char* text) {
  try {
    return base::StrictDouble(text);
  } catch (const base::RunTimeError&) {
    return std::nullopt;
  }
}

// "1d3" is not here: the language of the classic runtime has it, these conversions do not.
TEST(NumberTextWin, StrictFormsAreThoseOfTheAutomationConversions) {
#define BOTH(text) \
  { text, L##text }
  constexpr struct {
    const char* narrow;
    const wchar_t* wide;
  } kForms[] = {
      BOTH(" 12 "),  BOTH("\t12\r\n"), BOTH("+12"),   BOTH("- 12"),   BOTH("12-"),     BOTH("12 -"),
      BOTH("(12)"),  BOTH("( 12 )"),   BOTH("$12"),   BOTH("12$"),    BOTH("-$12"),    BOTH("$-12"),
      BOTH("($12)"), BOTH("+ $ 12"),   BOTH("1,234"), BOTH("1,2,3"),  BOTH("12,"),     BOTH("12,.5"),
      BOTH("1."),    BOTH(".5"),       BOTH("1e3"),   BOTH("1E+3"),   BOTH("1e3-"),    BOTH("&H10"),
      BOTH("&O17"),  BOTH("&HFFFF"),   BOTH("007"),   BOTH("1e-400"), BOTH("1e400"),   BOTH("-1e400"),
      BOTH(""),      BOTH(" "),        BOTH("."),     BOTH(",12"),    BOTH("12abc"),   BOTH("12 34"),
      BOTH("1e"),    BOTH("1e3.5"),    BOTH("1 e3"),  BOTH("--12"),   BOTH("-12-"),    BOTH("1.5.5"),
      BOTH("0x10"),  BOTH("&17"),      BOTH("&H"),    BOTH("12%"),    BOTH("12#"),     BOTH("True"),
      BOTH("(12"),   BOTH("12)"),      BOTH("()"),    BOTH("-"),      BOTH("1/2/2003")};
#undef BOTH
  for (const auto& form : kForms) EXPECT_EQ(Ours(form.narrow), Automation(form.wide)) << form.narrow;
}

TEST(NumberTextWin, NumbersReadAsTextAsThere) {
  for (const double value : {0.0, 12.0, 8.25, 1e15, 1e14, 999999999999999.0, 1e-5, 1e-4, 1.0 / 3, -1e-7,
                             1e300, 0.1, 123456789.125, -0.5}) {
    BSTR theirs = nullptr;
    ASSERT_EQ(VarBstrFromR8(value, kAmerican, 0, &theirs), S_OK);
    const std::string ours = base::NumberText(value);
    EXPECT_EQ(std::wstring(ours.begin(), ours.end()), theirs);
    SysFreeString(theirs);
  }
}

}  // namespace
