// SPDX-License-Identifier: MIT
//
// The program's own uname takes the place of the system library's.
#include <almara/almara_plugin.h>
#include <gtest/gtest.h>
#include <sys/utsname.h>

#include <cstring>
#include <string>

#include "embedding_control.h"

namespace {

struct {
  int result;
  const char* version;  // null: nothing is written
  bool saw_zeroes;
  int calls;
} fake;

}  // namespace

extern "C" int uname(struct utsname* system) {
  static const struct utsname zeroes = {};
  fake.saw_zeroes = std::memcmp(system, &zeroes, sizeof zeroes) == 0;
  ++fake.calls;
  if (fake.version != nullptr) {
    std::strcpy(system->release, "6.1.0");
    std::strcpy(system->version, fake.version);
  }
  return fake.result;
}

namespace {

std::string Ask() {
  FlPluginRegistrar* registrar = embedding::NewRegistrar();
  almara_plugin_register_with_registrar(registrar);
  const embedding::Reply reply = embedding::CallMethod(registrar, "almara", "getPlatformVersion");
  g_object_unref(registrar);
  EXPECT_EQ(reply.kind, embedding::ReplyKind::kSuccess);
  return reply.text;
}

TEST(Uname, FailingGivesAnEmptyVersion) {
  fake = {-1, nullptr, false, 0};
  EXPECT_EQ(Ask(), "Linux ");
  EXPECT_EQ(fake.calls, 1);
}

TEST(Uname, IsGivenAZeroedRecord) {
  fake = {0, "#1", false, 0};
  Ask();
  EXPECT_TRUE(fake.saw_zeroes);
}

TEST(Uname, VersionIsAnsweredAndNotTheRelease) {
  fake = {0, "#1 SMP PREEMPT_DYNAMIC Debian 6.1.0-1 (2024-02-10)", false, 0};
  EXPECT_EQ(Ask(), "Linux #1 SMP PREEMPT_DYNAMIC Debian 6.1.0-1 (2024-02-10)");
}

TEST(Uname, VersionIsText) {
  fake = {0, "100% %s \xE2\x82\xAC", false, 0};
  EXPECT_EQ(Ask(), "Linux 100% %s \xE2\x82\xAC");
}

TEST(Uname, LongestVersionIsAnsweredWhole) {
  const std::string longest(sizeof(utsname::version) - 1, 'v');
  fake = {0, longest.c_str(), false, 0};
  EXPECT_EQ(Ask(), "Linux " + longest);
}

// What a failing uname wrote all the same is answered: its result is not looked at.
TEST(Uname, ResultIsNotLookedAt) {
  fake = {-1, "#2", false, 0};
  EXPECT_EQ(Ask(), "Linux #2");
}

TEST(Uname, IsAskedAtEveryCall) {
  fake = {0, "#1", false, 0};
  EXPECT_EQ(Ask(), "Linux #1");
  fake.version = "#3";
  EXPECT_EQ(Ask(), "Linux #3");
  EXPECT_EQ(fake.calls, 2);
}

}  // namespace
