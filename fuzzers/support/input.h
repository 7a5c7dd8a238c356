// SPDX-License-Identifier: MIT
#ifndef ALMARA_FUZZERS_SUPPORT_INPUT_H_
#define ALMARA_FUZZERS_SUPPORT_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <limits>

namespace almara::test {

// The bytes of one fuzz input, taken from the front. Behind their end every byte reads 0.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : m_next(data), m_end(data + size) {}

  bool IsEmpty() const { return m_next == m_end; }

  std::uint8_t Byte() { return IsEmpty() ? std::uint8_t{0} : *m_next++; }

  bool Flag() { return (Byte() & 1U) != 0; }

  // Four bytes as they are, lowest first.
  std::int32_t Raw() {
    std::uint32_t value = 0;
    for (unsigned shift = 0; shift < 32; shift += 8) {
      value |= static_cast<std::uint32_t>(Byte()) << shift;
    }
    return static_cast<std::int32_t>(value);
  }

  // first to last, both included; last - first is at most 65535.
  std::int32_t Within(std::int32_t first, std::int32_t last) {
    const std::uint32_t low = Byte();
    const std::uint32_t value = low | static_cast<std::uint32_t>(Byte()) << 8U;
    return first +
           static_cast<std::int32_t>(value % (static_cast<std::uint32_t>(last - first) + 1U));
  }

  // Mostly first to last; one time in four a limit of int32 or any int.
  std::int32_t About(std::int32_t first, std::int32_t last) {
    switch (Byte() % 16U) {
      case 0:
        return std::numeric_limits<std::int32_t>::min();
      case 1:
        return std::numeric_limits<std::int32_t>::max();
      case 2:
      case 3:
        return Raw();
      default:
        return Within(first, last);
    }
  }

 private:
  const std::uint8_t* m_next;
  const std::uint8_t* m_end;
};

}  // namespace almara::test

#endif  // ALMARA_FUZZERS_SUPPORT_INPUT_H_
