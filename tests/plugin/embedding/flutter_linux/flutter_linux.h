/* SPDX-License-Identifier: MIT
 *
 * A stand-in for the Flutter Linux embedding, so that the plugin object can be built and tested
 * without one: what a registrant and the plugin call, under the public signatures. A test plays the
 * application by application.h.
 */
#ifndef ALMARA_TESTS_FLUTTER_LINUX_H_
#define ALMARA_TESTS_FLUTTER_LINUX_H_

#include <glib-object.h>

G_BEGIN_DECLS

G_DECLARE_INTERFACE(FlBinaryMessenger, fl_binary_messenger, FL, BINARY_MESSENGER, GObject)
G_DECLARE_INTERFACE(FlPluginRegistrar, fl_plugin_registrar, FL, PLUGIN_REGISTRAR, GObject)
G_DECLARE_INTERFACE(FlPluginRegistry, fl_plugin_registry, FL, PLUGIN_REGISTRY, GObject)
G_DECLARE_DERIVABLE_TYPE(FlMethodCodec, fl_method_codec, FL, METHOD_CODEC, GObject)
struct _FlMethodCodecClass {
  GObjectClass parent_class;
};
G_DECLARE_FINAL_TYPE(FlStandardMethodCodec, fl_standard_method_codec, FL, STANDARD_METHOD_CODEC,
                     FlMethodCodec)
G_DECLARE_FINAL_TYPE(FlMethodChannel, fl_method_channel, FL, METHOD_CHANNEL, GObject)
G_DECLARE_FINAL_TYPE(FlMethodCall, fl_method_call, FL, METHOD_CALL, GObject)
G_DECLARE_DERIVABLE_TYPE(FlMethodResponse, fl_method_response, FL, METHOD_RESPONSE, GObject)
struct _FlMethodResponseClass {
  GObjectClass parent_class;
};
G_DECLARE_FINAL_TYPE(FlMethodSuccessResponse, fl_method_success_response, FL,
                     METHOD_SUCCESS_RESPONSE, FlMethodResponse)
G_DECLARE_FINAL_TYPE(FlMethodNotImplementedResponse, fl_method_not_implemented_response, FL,
                     METHOD_NOT_IMPLEMENTED_RESPONSE, FlMethodResponse)

struct _FlBinaryMessengerInterface {
  GTypeInterface parent;
  void (*set_channel)(FlBinaryMessenger* messenger, const gchar* name, FlMethodChannel* channel);
};

struct _FlPluginRegistrarInterface {
  GTypeInterface parent;
  FlBinaryMessenger* (*get_messenger)(FlPluginRegistrar* registrar);
};

struct _FlPluginRegistryInterface {
  GTypeInterface parent;
  FlPluginRegistrar* (*get_registrar_for_plugin)(FlPluginRegistry* registry, const gchar* name);
};

typedef struct _FlValue FlValue;

typedef void (*FlMethodChannelMethodCallHandler)(FlMethodChannel* channel,
                                                 FlMethodCall* method_call, gpointer user_data);

/** A registrar of the caller's. */
FlPluginRegistrar* fl_plugin_registry_get_registrar_for_plugin(FlPluginRegistry* registry,
                                                               const gchar* name);

/** The registrar's messenger, which stays the registrar's. */
FlBinaryMessenger* fl_plugin_registrar_get_messenger(FlPluginRegistrar* registrar);

FlStandardMethodCodec* fl_standard_method_codec_new(void);

FlMethodChannel* fl_method_channel_new(FlBinaryMessenger* messenger, const gchar* name,
                                       FlMethodCodec* codec);

/**
 * The messenger keeps the channel until it is freed or another channel of the same name gets a
 * handler. destroy_notify is called on user_data when the channel is closed or gets another
 * handler, and not where the channel is NULL.
 */
void fl_method_channel_set_method_call_handler(FlMethodChannel* channel,
                                               FlMethodChannelMethodCallHandler handler,
                                               gpointer user_data, GDestroyNotify destroy_notify);

const gchar* fl_method_call_get_name(FlMethodCall* method_call);

/** FALSE, with the error set where one is asked for, if the response could not be sent. */
gboolean fl_method_call_respond(FlMethodCall* method_call, FlMethodResponse* response,
                                GError** error);

/** The response takes a reference to the result of its own. */
FlMethodSuccessResponse* fl_method_success_response_new(FlValue* result);

FlMethodNotImplementedResponse* fl_method_not_implemented_response_new(void);

FlValue* fl_value_new_string(const gchar* value);

void fl_value_unref(FlValue* value);

G_END_DECLS

#endif /* ALMARA_TESTS_FLUTTER_LINUX_H_ */
