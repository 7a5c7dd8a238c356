// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_SUPPORT_CAPTURE_STDOUT_H_
#define ALMARA_TESTS_SUPPORT_CAPTURE_STDOUT_H_

#include <string>

namespace almara::test {

// Keeps what the process writes to file descriptor 1 while the object lives.
class CaptureStdout {
 public:
  CaptureStdout();
  ~CaptureStdout();
  CaptureStdout(const CaptureStdout&) = delete;
  CaptureStdout& operator=(const CaptureStdout&) = delete;

  // The bytes written since the last call.
  std::string Take();

 private:
  int m_saved;  // the standard output as it was
  int m_file;
};

}  // namespace almara::test

#endif  // ALMARA_TESTS_SUPPORT_CAPTURE_STDOUT_H_
