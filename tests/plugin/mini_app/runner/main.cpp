// SPDX-License-Identifier: MIT
//
// mini_app FUNCTION...: registers its plugins, opens the plugin's library by name as Dart code
// does, resolves the functions named, builds a board and asks for the platform version.
#include <dlfcn.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "application.h"
#include "generated_plugin_registrant.h"

namespace {

[[noreturn]] void Fail(const std::string& what) {
  std::fprintf(stderr, "mini_app: %s\n", what.c_str());
  std::exit(1);
}

void* Resolve(void* library, const char* name) {
  void* address = dlsym(library, name);
  if (address == nullptr) {
    Fail(dlerror());
  }
  return address;
}

std::string FileOf(void* address) {
  Dl_info info;
  if (dladdr(address, &info) == 0) {
    Fail("an address of no file");
  }
  return info.dli_fname;
}

template <typename Function>
Function* ResolveAs(void* library, const char* name) {
  return reinterpret_cast<Function*>(Resolve(library, name));
}

int BoardRows(void* library) {
  constexpr std::int32_t kSimplifiedChinese = 1;
  ResolveAs<void(std::int32_t)>(library, "InitCalendarLogicDt")(kSimplifiedChinese);
  return ResolveAs<std::int32_t()>(library, "GetContentRows")();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    Fail("which library?");
  }
  FlPluginRegistry* const application = almara::test::NewApplication();
  fl_register_plugins(application);

  void* library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    Fail(dlerror());
  }
  const std::string file = FileOf(Resolve(library, "native_add"));
  for (int i = 2; i < argc; ++i) {
    // Elsewhere would mean a namesake in another library of the program.
    if (FileOf(Resolve(library, argv[i])) != file) {
      Fail(std::string(argv[i]) + ": not in " + file);
    }
  }

  const int rows = BoardRows(library);
  std::printf("library: %s\nresolved: %d\nrows: %d\n", file.c_str(), argc - 2, rows);
  std::printf("version: %s\n",
              almara::test::CallMethod(application, "almara", "getPlatformVersion").text.c_str());
  g_object_unref(application);
}
