// SPDX-License-Identifier: MIT
#include <almara/almara_plugin.h>
#include <gtest/gtest.h>
#include <sys/utsname.h>

#include <string>
#include <vector>

#include "embedding_control.h"

namespace {

using embedding::CallMethod;
using embedding::Delivery;
using embedding::LiveObjects;
using embedding::OpenChannel;
using embedding::OpenChannels;
using embedding::Reply;
using embedding::ReplyKind;

// What GLib and GObject complained about since the test began.
std::vector<std::string> complaints;

void Record(const gchar*, GLogLevelFlags, const gchar* message, gpointer) {
  complaints.emplace_back(message);
}

class AlmaraPlugin : public testing::Test {
 protected:
  AlmaraPlugin() {
    complaints.clear();
    g_log_set_default_handler(Record, nullptr);
  }

  ~AlmaraPlugin() override {
    CloseApplication();
    g_log_set_default_handler(g_log_default_handler, nullptr);
    EXPECT_EQ(complaints, std::vector<std::string>());
  }

  // Drops the registrar and with it the channels, as an application does at its end.
  void CloseApplication() { g_clear_object(&registrar_); }

  Reply Call(const char* method) { return CallMethod(registrar_, "almara", method); }

  GObject* PluginOf(size_t channel) {
    return static_cast<GObject*>(OpenChannels(registrar_).at(channel).user_data);
  }

  FlPluginRegistrar* registrar_ = embedding::NewRegistrar();
};

void ExpectNothingLives() {
  const LiveObjects live = embedding::CountLive();
  EXPECT_EQ(live.registrars, 0);
  EXPECT_EQ(live.messengers, 0);
  EXPECT_EQ(live.codecs, 0);
  EXPECT_EQ(live.channels, 0);
  EXPECT_EQ(live.calls, 0);
  EXPECT_EQ(live.responses, 0);
  EXPECT_EQ(live.values, 0);
}

std::string PlatformVersion() {
  struct utsname system = {};
  uname(&system);
  return std::string("Linux ") + system.version;
}

/* ---- The type -------------------------------------------------------------------------------- */

TEST_F(AlmaraPlugin, TypeIsAPlainSubclassOfGObject) {
  const GType type = almara_plugin_get_type();
  EXPECT_STREQ(g_type_name(type), "AlmaraPlugin");
  EXPECT_EQ(g_type_parent(type), G_TYPE_OBJECT);
  EXPECT_EQ(type, almara_plugin_get_type());
  EXPECT_EQ(type, g_type_from_name("AlmaraPlugin"));
}

TEST_F(AlmaraPlugin, InstanceAndClassHaveNoFieldsOfTheirOwn) {
  GTypeQuery query;
  g_type_query(almara_plugin_get_type(), &query);
  EXPECT_EQ(query.instance_size, sizeof(GObject));
  EXPECT_EQ(query.class_size, sizeof(GObjectClass));
}

int parent_disposals;
void (*parent_dispose)(GObject*);

void CountDispose(GObject* object) {
  ++parent_disposals;
  parent_dispose(object);
}

TEST_F(AlmaraPlugin, DisposeIsItsOwnAndChainsUp) {
  gpointer plugin = g_object_new(almara_plugin_get_type(), nullptr);
  auto* parent = static_cast<GObjectClass*>(g_type_class_peek(G_TYPE_OBJECT));
  EXPECT_NE(G_OBJECT_GET_CLASS(plugin)->dispose, parent->dispose);

  parent_disposals = 0;
  parent_dispose = parent->dispose;
  parent->dispose = CountDispose;
  g_object_run_dispose(G_OBJECT(plugin));
  parent->dispose = parent_dispose;
  EXPECT_EQ(parent_disposals, 1);
  g_object_unref(plugin);
}

/* ---- Registration ---------------------------------------------------------------------------- */

TEST_F(AlmaraPlugin, RegistrationOpensTheOneChannel) {
  almara_plugin_register_with_registrar(registrar_);
  const std::vector<OpenChannel> open = OpenChannels(registrar_);
  ASSERT_EQ(open.size(), 1u);
  EXPECT_EQ(open[0].name, "almara");
  EXPECT_TRUE(open[0].standard_codec);
  EXPECT_NE(open[0].handler, nullptr);
  EXPECT_TRUE(G_TYPE_CHECK_INSTANCE_TYPE(open[0].user_data, almara_plugin_get_type()));
}

TEST_F(AlmaraPlugin, OnlyTheHandlerKeepsThePluginAlive) {
  almara_plugin_register_with_registrar(registrar_);
  GObject* plugin = PluginOf(0);
  EXPECT_EQ(plugin->ref_count, 1u);
  g_object_add_weak_pointer(plugin, reinterpret_cast<gpointer*>(&plugin));
  CloseApplication();
  EXPECT_EQ(plugin, nullptr);
}

TEST_F(AlmaraPlugin, OnlyTheMessengerKeepsTheChannelAliveAndTheChannelTheCodec) {
  almara_plugin_register_with_registrar(registrar_);
  EXPECT_EQ(embedding::CountLive().channels, 1);
  EXPECT_EQ(embedding::CountLive().codecs, 1);
  CloseApplication();
  ExpectNothingLives();
}

TEST_F(AlmaraPlugin, SecondRegistrationMakesASecondPair) {
  almara_plugin_register_with_registrar(registrar_);
  GObject* first = PluginOf(0);
  g_object_add_weak_pointer(first, reinterpret_cast<gpointer*>(&first));
  g_object_ref(first);

  almara_plugin_register_with_registrar(registrar_);
  // The messenger lets the newer of two channels of one name replace the older one.
  ASSERT_EQ(OpenChannels(registrar_).size(), 1u);
  EXPECT_NE(PluginOf(0), first);
  EXPECT_EQ(first->ref_count, 1u);
  EXPECT_EQ(Call("getPlatformVersion").text, PlatformVersion());

  g_object_unref(first);
  EXPECT_EQ(first, nullptr);
  CloseApplication();
  ExpectNothingLives();
}

TEST_F(AlmaraPlugin, TwoApplicationsHaveAPairEach) {
  FlPluginRegistrar* other = embedding::NewRegistrar();
  almara_plugin_register_with_registrar(registrar_);
  almara_plugin_register_with_registrar(other);
  EXPECT_EQ(embedding::CountLive().channels, 2);
  EXPECT_NE(OpenChannels(other).at(0).user_data, PluginOf(0));
  CloseApplication();
  EXPECT_EQ(CallMethod(other, "almara", "getPlatformVersion").text, PlatformVersion());
  g_object_unref(other);
  ExpectNothingLives();
}

/* ---- Calls ----------------------------------------------------------------------------------- */

TEST_F(AlmaraPlugin, GetPlatformVersionAnswersTheKernelsVersionString) {
  almara_plugin_register_with_registrar(registrar_);
  const Reply reply = Call("getPlatformVersion");
  EXPECT_EQ(reply.kind, ReplyKind::kSuccess);
  EXPECT_EQ(reply.text, PlatformVersion());
  EXPECT_EQ(reply.responds, 1);
}

TEST_F(AlmaraPlugin, ArgumentsDoNotMatterAndAreLeftAlone) {
  almara_plugin_register_with_registrar(registrar_);
  FlValue* arguments = fl_value_new_string("release");
  const Reply reply =
      embedding::CallMethodWithArguments(registrar_, "almara", "getPlatformVersion", arguments);
  EXPECT_EQ(reply.kind, ReplyKind::kSuccess);
  EXPECT_EQ(reply.text, PlatformVersion());
  EXPECT_EQ(embedding::References(arguments), 1);
  fl_value_unref(arguments);
}

class OtherMethod : public AlmaraPlugin, public testing::WithParamInterface<const char*> {};

TEST_P(OtherMethod, IsNotImplemented) {
  almara_plugin_register_with_registrar(registrar_);
  const Reply reply = Call(GetParam());
  EXPECT_EQ(reply.kind, ReplyKind::kNotImplemented);
  EXPECT_EQ(reply.responds, 1);
  CloseApplication();
  ExpectNothingLives();
}

INSTANTIATE_TEST_SUITE_P(Names, OtherMethod,
                         testing::Values("getplatformversion", "GetPlatformVersion",
                                         "GETPLATFORMVERSION", "getPlatformVersio",
                                         "getPlatformVersion ", " getPlatformVersion",
                                         "getPlatformVersions", "native_add", "almara", "",
                                         nullptr));  // a call without a name

TEST_F(AlmaraPlugin, NothingListensOnOtherChannels) {
  almara_plugin_register_with_registrar(registrar_);
  for (const char* channel : {"Almara", "almara ", "almara_plugin", ""}) {
    EXPECT_EQ(CallMethod(registrar_, channel, "getPlatformVersion").kind, ReplyKind::kNone);
  }
}

TEST_F(AlmaraPlugin, NoErrorIsAskedForAndAFailureToRespondIsIgnored) {
  almara_plugin_register_with_registrar(registrar_);
  for (const char* method : {"getPlatformVersion", "other"}) {
    const Reply lost = CallMethod(registrar_, "almara", method, Delivery::kFails);
    EXPECT_EQ(lost.kind, ReplyKind::kNone);
    EXPECT_EQ(lost.responds, 1);
    EXPECT_FALSE(lost.asked_for_error);
    EXPECT_FALSE(CallMethod(registrar_, "almara", method).asked_for_error);
    EXPECT_EQ(embedding::CountLive().responses, 0);
    EXPECT_EQ(embedding::CountLive().values, 0);
  }
  EXPECT_EQ(Call("getPlatformVersion").text, PlatformVersion());
}

TEST_F(AlmaraPlugin, CallsLeaveNoReferences) {
  almara_plugin_register_with_registrar(registrar_);
  for (int i = 0; i < 1000; ++i) {
    Call(i % 2 == 0 ? "getPlatformVersion" : "other");
  }
  const LiveObjects live = embedding::CountLive();
  EXPECT_EQ(live.calls, 0);
  EXPECT_EQ(live.responses, 0);
  EXPECT_EQ(live.values, 0);
  EXPECT_EQ(PluginOf(0)->ref_count, 1u);
  CloseApplication();
  ExpectNothingLives();
}

TEST_F(AlmaraPlugin, HandlerReportsForeignDataAndStillAnswers) {
  almara_plugin_register_with_registrar(registrar_);
  const FlMethodChannelMethodCallHandler handler = OpenChannels(registrar_).at(0).handler;

  FlBinaryMessenger* messenger = fl_plugin_registrar_get_messenger(registrar_);
  FlStandardMethodCodec* codec = fl_standard_method_codec_new();
  FlMethodChannel* channel = fl_method_channel_new(messenger, "foreign", FL_METHOD_CODEC(codec));
  fl_method_channel_set_method_call_handler(channel, handler, codec, g_object_unref);
  EXPECT_EQ(CallMethod(registrar_, "foreign", "getPlatformVersion").text, PlatformVersion());
  g_object_unref(channel);

  ASSERT_EQ(complaints.size(), 1u);
  EXPECT_EQ(complaints[0], "invalid cast from 'FlStandardMethodCodec' to 'AlmaraPlugin'");
  complaints.clear();
}

}  // namespace
