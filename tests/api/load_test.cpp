// SPDX-License-Identifier: MIT
//
// The library as a foreign-function bridge sees it: opened by its file name, functions by theirs.
// Nothing here is linked with it.
#include <almara/almara.h>
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace {

constexpr const char* kExportedNames[] = {
#include "exported_names.inc"
};

class Load : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(dlsym(RTLD_DEFAULT, "GetMaxRow"), nullptr) << "the program already has the library";
    m_library = dlopen(ALMARA_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(m_library, nullptr) << dlerror();
  }

  template <typename Function>
  Function* Find(const char* name) {
    auto* function = reinterpret_cast<Function*>(dlsym(m_library, name));
    EXPECT_NE(function, nullptr) << name;
    return function;
  }

  void* m_library = nullptr;
};

TEST_F(Load, EveryDeclaredFunctionIsFoundByItsName) {
  EXPECT_GE(std::size(kExportedNames), 39U);
  for (const char* name : kExportedNames) {
    EXPECT_NE(dlsym(m_library, name), nullptr) << name;
  }
}

TEST_F(Load, NoInternalNameIsFound) {
  for (const char* name : {"g_pCalendarLogic", "mtx", "g_mac_timezone", "setDay",
                           "_ZN14CCalendarLogic5BuildEv", "_ZTI14CCalendarLogic"}) {
    EXPECT_EQ(dlsym(m_library, name), nullptr) << name;
  }
}

TEST_F(Load, FunctionsWorkThroughTheirAddresses) {
  EXPECT_EQ(Find<decltype(native_add)>("native_add")(2147483647, 1), -2147483648LL);
  const CCalendarSolarDate date =
      Find<decltype(CreateSolarDate)>("CreateSolarDate")(2024, 2, 30, 9);
  EXPECT_EQ(date.year, 2024);
  EXPECT_EQ(date.dayOfWeek, 9);
  const tagCalendarCell cell = Find<decltype(GetContentItem)>("GetContentItem")(0, 0);
  EXPECT_EQ(cell.weekNumber, -1);
  EXPECT_EQ(cell.type, 1);
  const tagWeekNumberSpan span =
      Find<decltype(GetWeekNumberItemWithIndex)>("GetWeekNumberItemWithIndex")(0);
  EXPECT_EQ(span.rows, 0);
  char* key = Find<decltype(GetConfigKey)>("GetConfigKey")();
  EXPECT_STREQ(key, "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1");
  std::free(key);
}

TEST_F(Load, OpenedTwiceItIsOneEngine) {
  void* again = dlopen(ALMARA_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(again, nullptr);
  Find<decltype(SetMaxRow)>("SetMaxRow")(3);
  auto* getMaxRow = reinterpret_cast<decltype(GetMaxRow)*>(dlsym(again, "GetMaxRow"));
  EXPECT_EQ(getMaxRow(), 3);
  EXPECT_EQ(dlclose(again), 0);
  EXPECT_EQ(Find<decltype(GetMaxRow)>("GetMaxRow")(), 3);
}

}  // namespace
