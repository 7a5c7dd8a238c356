// SPDX-License-Identifier: MIT
#include <almara/almara_plugin.h>

#include <sys/utsname.h>

struct AlmaraPlugin {
  GObject parent_instance;
};

struct AlmaraPluginClass {
  GObjectClass parent_class;
};

// The macro asks for private data, which this type has none of.
G_DEFINE_TYPE(AlmaraPlugin, almara_plugin, g_object_get_type())  // GCOVR_EXCL_BR_LINE

static void almara_plugin_dispose(GObject* object) {
  G_OBJECT_CLASS(almara_plugin_parent_class)->dispose(object);
}

static void almara_plugin_class_init(AlmaraPluginClass* klass) {
  G_OBJECT_CLASS(klass)->dispose = almara_plugin_dispose;
}

static void almara_plugin_init(AlmaraPlugin* /*plugin*/) {}

// Responses and the codec become their base types by a plain cast: a checked one would ask the
// embedding for the type functions too.

// The caller owns the response.
static FlMethodResponse* get_platform_version() {
  // The result of uname is not looked at: where it fails the version stays empty.
  struct utsname system = {};
  uname(&system);
  gchar* text = g_strdup_printf("Linux %s", system.version);
  FlValue* value = fl_value_new_string(text);
  gpointer response = fl_method_success_response_new(value);
  fl_value_unref(value);
  g_free(text);
  return static_cast<FlMethodResponse*>(response);
}

static FlMethodResponse* not_implemented() {
  gpointer response = fl_method_not_implemented_response_new();
  return static_cast<FlMethodResponse*>(response);
}

static void method_call_cb(FlMethodChannel* /*channel*/, FlMethodCall* method_call,
                           gpointer user_data) {
  // Nothing of the plugin is used; the cast reports a handler installed with foreign data.
  static_cast<void>(G_TYPE_CHECK_INSTANCE_CAST(user_data, almara_plugin_get_type(), AlmaraPlugin));

  const gchar* method = fl_method_call_get_name(method_call);
  FlMethodResponse* response =
      g_strcmp0(method, "getPlatformVersion") == 0 ? get_platform_version() : not_implemented();
  // A caller that has gone away cannot be told anything, so no error is asked for.
  fl_method_call_respond(method_call, response, nullptr);
  g_object_unref(response);
}

void almara_plugin_register_with_registrar(FlPluginRegistrar* registrar) {
  // Without a messenger, as where the application's engine did not start, there is no channel.
  FlBinaryMessenger* messenger =
      registrar != nullptr ? fl_plugin_registrar_get_messenger(registrar) : nullptr;
  g_return_if_fail(messenger != nullptr);
  gpointer plugin = g_object_new(almara_plugin_get_type(), nullptr);
  gpointer codec = fl_standard_method_codec_new();
  FlMethodChannel* channel =
      fl_method_channel_new(messenger, "almara", static_cast<FlMethodCodec*>(codec));
  fl_method_channel_set_method_call_handler(channel, method_call_cb, g_object_ref(plugin),
                                            g_object_unref);
  g_object_unref(plugin);
  g_object_unref(channel);
  g_object_unref(codec);
}
