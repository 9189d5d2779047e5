#include "startup/show_keys.h"

namespace startup {

namespace {

using saver::ShowWish;

struct KeyRow {
  int keyCode;
  ShowWish wish;
};

// Keys that stand for no letter.
constexpr int kEnter = 0x0D;
constexpr int kSpace = 0x20;
constexpr int kPageUp = 0x21;
constexpr int kPageDown = 0x22;
constexpr int kLeft = 0x25;
constexpr int kRight = 0x27;
constexpr int kDelete = 0x2E;
constexpr int kF1 = 0x70;

constexpr KeyRow kRows[] = {
    {kRight, ShowWish::Next},        {kPageDown, ShowWish::Next}, {'N', ShowWish::Next},
    {kLeft, ShowWish::Back},         {kPageUp, ShowWish::Back},   {'B', ShowWish::Back},
    {kSpace, ShowWish::Hold},        {'P', ShowWish::Hold},       {'I', ShowWish::Information},
    {kDelete, ShowWish::NeverAgain}, {'O', ShowWish::OpenFolder}, {kEnter, ShowWish::OpenFolder},
    {kF1, ShowWish::Help},           {'H', ShowWish::Help},
};

}  // namespace

std::optional<ShowWish> WishOfKey(int keyCode) {
  for (const KeyRow& row : kRows) {
    if (row.keyCode == keyCode) return row.wish;
  }
  return std::nullopt;
}

}  // namespace startup
