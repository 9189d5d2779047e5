#include "base/natural_order.h"

#include <cstddef>

#include "base/text.h"

namespace base {

namespace {

// Takes the digits at the front of a text, without the zeros that lead them.
std::string_view TakeNumber(std::string_view& rest) {
  std::size_t end = 0;
  while (end < rest.size() && IsDigit(rest[end])) ++end;
  std::size_t begin = 0;
  while (begin < end && rest[begin] == '0') ++begin;
  const std::string_view number = rest.substr(begin, end - begin);
  rest.remove_prefix(end);
  return number;
}

int CompareNumbers(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
  return a.compare(b);
}

}  // namespace

int CompareNaturally(std::string_view a, std::string_view b) {
  std::string_view restA = a;
  std::string_view restB = b;
  while (!restA.empty() && !restB.empty()) {
    if (IsDigit(restA.front()) && IsDigit(restB.front())) {
      if (const int order = CompareNumbers(TakeNumber(restA), TakeNumber(restB)); order != 0) return order;
      continue;
    }
    const auto letterA = static_cast<unsigned char>(AsciiLower(restA.front()));
    const auto letterB = static_cast<unsigned char>(AsciiLower(restB.front()));
    if (letterA != letterB) return letterA < letterB ? -1 : 1;
    restA.remove_prefix(1);
    restB.remove_prefix(1);
  }
  if (restA.empty() != restB.empty()) return restA.empty() ? -1 : 1;
  return a.compare(b);
}

bool IsNumberedBefore(std::string_view a, std::string_view b) {
  std::size_t at = 0;
  while (at < a.size() && at < b.size() && AsciiLower(a[at]) == AsciiLower(b[at])) ++at;
  const auto isDigitAt = [](std::string_view text, std::size_t i) {
    return i < text.size() && IsDigit(text[i]);
  };
  if (!isDigitAt(a, at) || !isDigitAt(b, at) || a[at] > b[at]) return false;
  while (isDigitAt(a, at) && isDigitAt(b, at)) ++at;
  return !isDigitAt(a, at) && !isDigitAt(b, at);
}

}  // namespace base
