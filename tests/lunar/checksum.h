// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_LUNAR_CHECKSUM_H_
#define ALMARA_TESTS_LUNAR_CHECKSUM_H_

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace almara::test {

// FNV-1a of the values added, byte by byte.
class Checksum {
 public:
  template <typename Value>
  void Add(const Value& value) {
    unsigned char bytes[sizeof value];
    std::memcpy(bytes, &value, sizeof value);
    for (const unsigned char byte : bytes) {
      m_value = (m_value ^ byte) * 1099511628211U;
    }
  }

  std::uint64_t Value() const { return m_value; }

 private:
  std::uint64_t m_value = 14695981039346656037U;
};

}  // namespace almara::test

#endif  // ALMARA_TESTS_LUNAR_CHECKSUM_H_
