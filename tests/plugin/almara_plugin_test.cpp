// SPDX-License-Identifier: MIT
//
// The program's own uname() takes the place of the system library's.
#include <almara/almara_plugin.h>
#include <gtest/gtest.h>
#include <sys/utsname.h>

#include <cstring>
#include <string>
#include <vector>

#include "application.h"

namespace {

struct {
  int result;
  std::string version;
  bool isGivenZeroes;
} g_system;

}  // namespace

extern "C" int uname(struct utsname* system) {
  static const struct utsname zeroes = {};
  g_system.isGivenZeroes = std::memcmp(system, &zeroes, sizeof zeroes) == 0;
  std::strcpy(system->release, "6.1.0");
  std::strcpy(system->version, g_system.version.c_str());
  return g_system.result;
}

namespace almara::test {

namespace {

// What GLib and GObject complained about since the test began.
std::vector<std::string> g_complaints;

void Record(const gchar*, GLogLevelFlags, const gchar* message, gpointer) {
  g_complaints.emplace_back(message);
}

class AlmaraPlugin : public testing::Test {
 protected:
  AlmaraPlugin() {
    g_complaints.clear();
    g_system = {0, "#1 SMP PREEMPT_DYNAMIC 100% %s \xE2\x82\xAC", false};
    g_log_set_default_handler(Record, nullptr);
  }

  ~AlmaraPlugin() override {
    CloseApplication();
    g_log_set_default_handler(g_log_default_handler, nullptr);
    EXPECT_EQ(g_complaints, std::vector<std::string>());
  }

  // As a generated registrant does: the registrar is dropped at once.
  static void Register(FlPluginRegistry* application) {
    FlPluginRegistrar* const registrar =
        fl_plugin_registry_get_registrar_for_plugin(application, "AlmaraPlugin");
    almara_plugin_register_with_registrar(registrar);
    g_object_unref(registrar);
  }

  void CloseApplication() { g_clear_object(&m_application); }

  Reply Call(const char* method) { return CallMethod(m_application, "almara", method); }

  FlPluginRegistry* m_application = NewApplication();
};

const std::string kAnswer = "Linux #1 SMP PREEMPT_DYNAMIC 100% %s \xE2\x82\xAC";

TEST_F(AlmaraPlugin, TypeIsAPlainSubclassOfGObjectWithoutFields) {
  const GType type = almara_plugin_get_type();
  GTypeQuery query;
  g_type_query(type, &query);
  EXPECT_STREQ(query.type_name, "AlmaraPlugin");
  EXPECT_EQ(query.instance_size, sizeof(GObject));
  EXPECT_EQ(query.class_size, sizeof(GObjectClass));
  EXPECT_EQ(g_type_parent(type), G_TYPE_OBJECT);
  EXPECT_EQ(type, almara_plugin_get_type());
}

int g_parentDisposals;
void (*g_parentDispose)(GObject*);

TEST_F(AlmaraPlugin, DisposeIsItsOwnAndChainsUp) {
  gpointer plugin = g_object_new(almara_plugin_get_type(), nullptr);
  auto* parent = static_cast<GObjectClass*>(g_type_class_peek(G_TYPE_OBJECT));
  EXPECT_NE(G_OBJECT_GET_CLASS(plugin)->dispose, parent->dispose);

  g_parentDisposals = 0;
  g_parentDispose = parent->dispose;
  parent->dispose = [](GObject* object) {
    ++g_parentDisposals;
    g_parentDispose(object);
  };
  g_object_run_dispose(G_OBJECT(plugin));
  parent->dispose = g_parentDispose;
  EXPECT_EQ(g_parentDisposals, 1);
  g_object_unref(plugin);
}

TEST_F(AlmaraPlugin, RegistrationOpensTheOneChannelWhoseHandlerAloneKeepsThePluginAlive) {
  Register(m_application);
  EXPECT_EQ(CountChannels(m_application), 1U);
  OpenChannel channel = ChannelOf(m_application, "almara");
  EXPECT_TRUE(channel.isStandardCodec);
  ASSERT_TRUE(G_TYPE_CHECK_INSTANCE_TYPE(channel.userData, almara_plugin_get_type()));
  EXPECT_EQ(channel.userData->ref_count, 1U);
  g_object_add_weak_pointer(channel.userData, reinterpret_cast<gpointer*>(&channel.userData));
  CloseApplication();
  EXPECT_EQ(channel.userData, nullptr);
}

TEST_F(AlmaraPlugin, SecondRegistrationMakesASecondPairThatReplacesTheFirst) {
  Register(m_application);
  GObject* first = ChannelOf(m_application, "almara").userData;
  g_object_add_weak_pointer(first, reinterpret_cast<gpointer*>(&first));
  Register(m_application);
  EXPECT_EQ(first, nullptr);
  EXPECT_EQ(CountChannels(m_application), 1U);
  EXPECT_EQ(Call("getPlatformVersion").text, kAnswer);
}

TEST_F(AlmaraPlugin, TwoApplicationsHaveAPairEach) {
  FlPluginRegistry* const other = NewApplication();
  Register(m_application);
  Register(other);
  EXPECT_NE(ChannelOf(other, "almara").userData, ChannelOf(m_application, "almara").userData);
  CloseApplication();
  EXPECT_EQ(CallMethod(other, "almara", "getPlatformVersion").text, kAnswer);
  g_object_unref(other);
}

// As where the application's engine did not start. Valgrind sees that nothing is left.
TEST_F(AlmaraPlugin, RegistrationWithoutARegistrarOrAMessengerSaysSoOnceAndEnds) {
  almara_plugin_register_with_registrar(nullptr);
  FlPluginRegistrar* const registrar = NewRegistrarWithoutMessenger();
  almara_plugin_register_with_registrar(registrar);
  g_object_unref(registrar);
  ASSERT_EQ(g_complaints.size(), 2U);
  for (const std::string& complaint : g_complaints) {
    EXPECT_NE(complaint.find("almara_plugin_register_with_registrar"), std::string::npos);
  }
  g_complaints.clear();
}

TEST_F(AlmaraPlugin, GetPlatformVersionAnswersTheKernelsVersionStringAtEveryCall) {
  Register(m_application);
  const Reply reply = Call("getPlatformVersion");
  EXPECT_EQ(reply.kind, Reply::kSuccess);
  EXPECT_EQ(reply.text, kAnswer);
  EXPECT_EQ(reply.responds, 1);
  EXPECT_TRUE(g_system.isGivenZeroes);
  // The longest version, and that of a uname() that fails: its result is not looked at.
  const std::string longest(sizeof(utsname::version) - 1, 'v');
  g_system = {-1, longest, false};
  EXPECT_EQ(Call("getPlatformVersion").text, "Linux " + longest);
  g_system.version = "";
  EXPECT_EQ(Call("getPlatformVersion").text, "Linux ");
}

TEST_F(AlmaraPlugin, OtherMethodsAreNotImplementedAndOtherChannelsSilent) {
  Register(m_application);
  for (const char* method : {"getplatformversion", "GetPlatformVersion", "getPlatformVersio",
                             "getPlatformVersion ", "getPlatformVersions", "native_add", ""}) {
    const Reply reply = Call(method);
    EXPECT_EQ(reply.kind, Reply::kNotImplemented) << method;
    EXPECT_EQ(reply.responds, 1) << method;
  }
  for (const char* channel : {"Almara", "almara ", "almara_plugin", ""}) {
    EXPECT_EQ(CallMethod(m_application, channel, "getPlatformVersion").kind, Reply::kNone);
  }
}

TEST_F(AlmaraPlugin, NoErrorIsAskedForAndALostAnswerIsIgnored) {
  Register(m_application);
  for (const char* method : {"getPlatformVersion", "other"}) {
    const Reply lost = CallMethod(m_application, "almara", method, true);
    EXPECT_EQ(lost.kind, Reply::kNone);
    EXPECT_EQ(lost.responds, 1);
    EXPECT_FALSE(lost.askedForError);
  }
  EXPECT_EQ(Call("getPlatformVersion").text, kAnswer);
  EXPECT_EQ(ChannelOf(m_application, "almara").userData->ref_count, 1U);
}

TEST_F(AlmaraPlugin, HandlerReportsForeignDataAndStillAnswers) {
  Register(m_application);
  FlStandardMethodCodec* codec = fl_standard_method_codec_new();
  FlMethodChannel* channel =
      fl_method_channel_new(FL_BINARY_MESSENGER(m_application), "foreign", FL_METHOD_CODEC(codec));
  fl_method_channel_set_method_call_handler(channel, ChannelOf(m_application, "almara").handler,
                                            codec, g_object_unref);
  EXPECT_EQ(CallMethod(m_application, "foreign", "getPlatformVersion").text, kAnswer);
  g_object_unref(channel);

  ASSERT_EQ(g_complaints.size(), 1U);
  EXPECT_EQ(g_complaints[0], "invalid cast from 'FlStandardMethodCodec' to 'AlmaraPlugin'");
  g_complaints.clear();
}

}  // namespace

}  // namespace almara::test
