// SPDX-License-Identifier: MIT
#include "date/decimal_text.h"

namespace almara {

namespace {

constexpr int kMaxDigits = 10;  // of 32 bits
constexpr std::uint32_t kPowersOfTen[kMaxDigits] = {
    1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000};

// MUTATE_EXCL: AppendDate() writes the same text either way.
bool IsWithin(std::int32_t value, std::int32_t last) { return value >= 0 && value <= last; }

char* AppendTwoDigits(char* out, std::int32_t value) {
  out[0] = static_cast<char>('0' + value / 10);
  out[1] = static_cast<char>('0' + value % 10);
  return out + 2;
}

}  // namespace

char* AppendDecimal(char* out, std::int32_t value, int minDigits) {
  auto magnitude = static_cast<std::uint32_t>(value);
  if (value < 0) {
    *out++ = '-';
    magnitude = 0U - magnitude;
  }
  int length = minDigits;
  while (length < kMaxDigits && magnitude >= kPowersOfTen[length]) {
    ++length;
  }
  char* const end = out + length;
  for (char* digit = end; digit != out; magnitude /= 10) {
    *--digit = static_cast<char>('0' + magnitude % 10);
  }
  return end;
}

char* AppendDate(char* out, std::int32_t year, std::int32_t month, std::int32_t day) {
  // MUTATE_EXCL: both branches write the same text.
  if (IsWithin(year, 9999) && IsWithin(month, 99) && IsWithin(day, 99)) {  // all that boards show
    out = AppendTwoDigits(AppendTwoDigits(out, year / 100), year % 100);
    *out++ = '-';
    out = AppendTwoDigits(out, month);
    *out++ = '-';
    return AppendTwoDigits(out, day);
  }
  out = AppendDecimal(out, year, 4);
  *out++ = '-';
  out = AppendDecimal(out, month, 2);
  *out++ = '-';
  return AppendDecimal(out, day, 2);
}

}  // namespace almara
