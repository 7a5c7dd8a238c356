// SPDX-License-Identifier: MIT
//
// Any sequence of exported calls.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "api/fresh_engine.h"
#include "api/session.h"
#include "support/check.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  setenv("TZ", "UTC", 1);
  almara::test::SilenceStandardOutput();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  almara::test::StartFreshEngine();
  almara::test::SetNow(1710331200);  // 2024-03-13 12:00:00 UTC
  almara::test::Input input(data, size);
  almara::test::Session session;
  session.Run(input);
  return 0;
}
