// SPDX-License-Identifier: MIT
//
// The program's own g_type_register_static_simple stands in front of GObject's, so that every
// registration is seen. Each case runs in a child process, where the type is not yet registered.
#include <almara/almara_plugin.h>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstring>
#include <thread>
#include <vector>

namespace {

struct Registration {
  GType parent;
  const gchar* name;
  guint class_size;
  GClassInitFunc class_init;
  guint instance_size;
  GInstanceInitFunc instance_init;
  GTypeFlags flags;
};

Registration last;
std::atomic<int> registrations{0};

}  // namespace

extern "C" GType g_type_register_static_simple(GType parent, const gchar* name, guint class_size,
                                               GClassInitFunc class_init, guint instance_size,
                                               GInstanceInitFunc instance_init, GTypeFlags flags) {
  static const auto real = reinterpret_cast<decltype(&g_type_register_static_simple)>(
      dlsym(RTLD_NEXT, "g_type_register_static_simple"));
  if (std::strcmp(name, "AlmaraPlugin") == 0) {
    last = {parent, name, class_size, class_init, instance_size, instance_init, flags};
    ++registrations;
    // Whoever else asks meanwhile has to wait.
    usleep(1000);
  }
  return real(parent, name, class_size, class_init, instance_size, instance_init, flags);
}

namespace {

// Runs check in a child process; true if it held there.
template <typename Check>
bool HoldsInFreshProcess(Check check) {
  const pid_t child = fork();
  if (child == 0) _exit(check() ? 0 : 1);
  int status = 0;
  return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool ManyThreadsGetOneType() {
  constexpr size_t kThreads = 8;
  std::atomic<bool> go{false};
  std::vector<GType> types(kThreads, G_TYPE_INVALID);
  std::vector<std::thread> threads;
  for (GType& type : types) {
    threads.emplace_back([&go, &type] {
      while (!go) std::this_thread::yield();
      type = almara_plugin_get_type();
    });
  }
  go = true;
  for (std::thread& thread : threads) thread.join();
  for (const GType type : types) {
    if (type == G_TYPE_INVALID || type != types[0]) return false;
  }
  return registrations == 1;
}

TEST(TypeRegistration, IsLazy) {
  EXPECT_TRUE(HoldsInFreshProcess(
      [] { return registrations == 0 && g_type_from_name("AlmaraPlugin") == 0; }));
}

TEST(TypeRegistration, HappensOnceHoweverOftenTheTypeIsAsked) {
  EXPECT_TRUE(HoldsInFreshProcess([] {
    const GType type = almara_plugin_get_type();
    for (int i = 0; i < 1000; ++i) {
      if (almara_plugin_get_type() != type) return false;
    }
    return registrations == 1;
  }));
}

TEST(TypeRegistration, HappensOnceWhenManyThreadsAskAtATime) {
  for (int i = 0; i < 5; ++i) {
    ASSERT_TRUE(HoldsInFreshProcess(ManyThreadsGetOneType)) << "process " << i;
  }
}

TEST(TypeRegistration, StatesAPlainSubclassOfGObject) {
  EXPECT_TRUE(HoldsInFreshProcess([] {
    almara_plugin_get_type();
    return last.parent == g_object_get_type() &&
           last.name == g_intern_string("AlmaraPlugin") &&  // the interned text itself
           last.class_size == sizeof(GObjectClass) && last.class_init != nullptr &&
           last.instance_size == sizeof(GObject) && last.instance_init != nullptr &&
           last.flags == 0;
  }));
}

}  // namespace
