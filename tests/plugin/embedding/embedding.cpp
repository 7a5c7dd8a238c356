// SPDX-License-Identifier: MIT
#include <map>
#include <string>

#include "application.h"

using Channels = std::map<std::string, FlMethodChannel*>;

struct _FlValue {
  int references;
  std::string text;
};

struct _FlStandardMethodCodec {
  FlMethodCodec parent_instance;
};

struct _FlMethodChannel {
  GObject parent_instance;
  FlBinaryMessenger* messenger;  // outlives the channel
  std::string* name;
  FlMethodCodec* codec;
  FlMethodChannelMethodCallHandler handler;
  gpointer user_data;
  GDestroyNotify destroy_notify;
};

struct _FlMethodCall {
  GObject parent_instance;
  const gchar* name;
  FlMethodResponse* response;
  bool answer_is_lost;
  int responds;
  bool asked_for_error;
};

struct _FlMethodSuccessResponse {
  FlMethodResponse parent_instance;
  FlValue* result;
};

struct _FlMethodNotImplementedResponse {
  FlMethodResponse parent_instance;
};

// The registry and the messenger of an application.
G_DECLARE_FINAL_TYPE(Application, application, STANDIN, APPLICATION, GObject)
struct _Application {
  GObject parent_instance;
  Channels* channels;
};

// What the application hands to one plugin.
G_DECLARE_FINAL_TYPE(Registrar, registrar, STANDIN, REGISTRAR, GObject)
struct _Registrar {
  GObject parent_instance;
  Application* application;
};

static void set_channel(FlBinaryMessenger* messenger, const gchar* name, FlMethodChannel* channel) {
  FlMethodChannel*& open = (*STANDIN_APPLICATION(messenger)->channels)[name];
  g_set_object(&open, channel);
}

static FlPluginRegistrar* get_registrar(FlPluginRegistry* registry, const gchar* /*name*/) {
  gpointer registrar = g_object_new(registrar_get_type(), nullptr);
  STANDIN_REGISTRAR(registrar)->application =
      STANDIN_APPLICATION(g_object_ref(STANDIN_APPLICATION(registry)));
  return FL_PLUGIN_REGISTRAR(registrar);
}

static FlBinaryMessenger* get_messenger(FlPluginRegistrar* registrar) {
  return reinterpret_cast<FlBinaryMessenger*>(STANDIN_REGISTRAR(registrar)->application);
}

static void messenger_init(FlBinaryMessengerInterface* iface) { iface->set_channel = set_channel; }
static void registry_init(FlPluginRegistryInterface* iface) {
  iface->get_registrar_for_plugin = get_registrar;
}
static void registrar_iface_init(FlPluginRegistrarInterface* iface) {
  iface->get_messenger = get_messenger;
}
static void fl_binary_messenger_default_init(FlBinaryMessengerInterface*) {}
static void fl_plugin_registrar_default_init(FlPluginRegistrarInterface*) {}
static void fl_plugin_registry_default_init(FlPluginRegistryInterface*) {}

G_DEFINE_INTERFACE(FlBinaryMessenger, fl_binary_messenger, G_TYPE_OBJECT)
G_DEFINE_INTERFACE(FlPluginRegistrar, fl_plugin_registrar, G_TYPE_OBJECT)
G_DEFINE_INTERFACE(FlPluginRegistry, fl_plugin_registry, G_TYPE_OBJECT)
G_DEFINE_TYPE_WITH_CODE(Application, application, G_TYPE_OBJECT,
                        G_IMPLEMENT_INTERFACE(fl_binary_messenger_get_type(), messenger_init)
                            G_IMPLEMENT_INTERFACE(fl_plugin_registry_get_type(), registry_init))
G_DEFINE_TYPE_WITH_CODE(Registrar, registrar, G_TYPE_OBJECT,
                        G_IMPLEMENT_INTERFACE(fl_plugin_registrar_get_type(), registrar_iface_init))
G_DEFINE_ABSTRACT_TYPE(FlMethodCodec, fl_method_codec, G_TYPE_OBJECT)
G_DEFINE_TYPE(FlStandardMethodCodec, fl_standard_method_codec, fl_method_codec_get_type())
G_DEFINE_TYPE(FlMethodChannel, fl_method_channel, G_TYPE_OBJECT)
G_DEFINE_TYPE(FlMethodCall, fl_method_call, G_TYPE_OBJECT)
G_DEFINE_ABSTRACT_TYPE(FlMethodResponse, fl_method_response, G_TYPE_OBJECT)
G_DEFINE_TYPE(FlMethodSuccessResponse, fl_method_success_response, fl_method_response_get_type())
G_DEFINE_TYPE(FlMethodNotImplementedResponse, fl_method_not_implemented_response,
              fl_method_response_get_type())

/* ---- Application and registrar --------------------------------------------------------------- */

static void application_init(Application* self) { self->channels = new Channels; }
static void application_class_init(ApplicationClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = [](GObject* object) {
    Channels* channels = STANDIN_APPLICATION(object)->channels;
    for (const auto& [name, channel] : *channels) {
      g_object_unref(channel);
    }
    delete channels;
    G_OBJECT_CLASS(application_parent_class)->finalize(object);
  };
}

static void registrar_init(Registrar*) {}
static void registrar_class_init(RegistrarClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = [](GObject* object) {
    g_clear_object(&STANDIN_REGISTRAR(object)->application);
    G_OBJECT_CLASS(registrar_parent_class)->finalize(object);
  };
}

FlPluginRegistrar* fl_plugin_registry_get_registrar_for_plugin(FlPluginRegistry* registry,
                                                               const gchar* name) {
  g_return_val_if_fail(FL_IS_PLUGIN_REGISTRY(registry), nullptr);
  return FL_PLUGIN_REGISTRY_GET_IFACE(registry)->get_registrar_for_plugin(registry, name);
}

FlBinaryMessenger* fl_plugin_registrar_get_messenger(FlPluginRegistrar* registrar) {
  g_return_val_if_fail(FL_IS_PLUGIN_REGISTRAR(registrar), nullptr);
  return FL_PLUGIN_REGISTRAR_GET_IFACE(registrar)->get_messenger(registrar);
}

/* ---- Codec and channel ----------------------------------------------------------------------- */

static void fl_method_codec_class_init(FlMethodCodecClass*) {}
static void fl_method_codec_init(FlMethodCodec*) {}
static void fl_standard_method_codec_class_init(FlStandardMethodCodecClass*) {}
static void fl_standard_method_codec_init(FlStandardMethodCodec*) {}

FlStandardMethodCodec* fl_standard_method_codec_new() {
  return FL_STANDARD_METHOD_CODEC(g_object_new(fl_standard_method_codec_get_type(), nullptr));
}

static void drop_handler(FlMethodChannel* channel) {
  const GDestroyNotify destroy_notify = channel->destroy_notify;
  channel->handler = nullptr;
  channel->destroy_notify = nullptr;
  if (destroy_notify != nullptr) {
    destroy_notify(channel->user_data);
  }
}

static void fl_method_channel_init(FlMethodChannel*) {}
static void fl_method_channel_class_init(FlMethodChannelClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = [](GObject* object) {
    FlMethodChannel* channel = FL_METHOD_CHANNEL(object);
    drop_handler(channel);
    g_object_unref(channel->codec);
    delete channel->name;
    G_OBJECT_CLASS(fl_method_channel_parent_class)->finalize(object);
  };
}

FlMethodChannel* fl_method_channel_new(FlBinaryMessenger* messenger, const gchar* name,
                                       FlMethodCodec* codec) {
  g_return_val_if_fail(FL_IS_BINARY_MESSENGER(messenger), nullptr);
  g_return_val_if_fail(name != nullptr, nullptr);
  g_return_val_if_fail(FL_IS_METHOD_CODEC(codec), nullptr);
  FlMethodChannel* channel = FL_METHOD_CHANNEL(g_object_new(fl_method_channel_get_type(), nullptr));
  channel->messenger = messenger;
  channel->name = new std::string(name);
  channel->codec = FL_METHOD_CODEC(g_object_ref(codec));
  return channel;
}

void fl_method_channel_set_method_call_handler(FlMethodChannel* channel,
                                               FlMethodChannelMethodCallHandler handler,
                                               gpointer user_data, GDestroyNotify destroy_notify) {
  g_return_if_fail(FL_IS_METHOD_CHANNEL(channel));
  drop_handler(channel);
  channel->handler = handler;
  channel->user_data = user_data;
  channel->destroy_notify = destroy_notify;
  FL_BINARY_MESSENGER_GET_IFACE(channel->messenger)
      ->set_channel(channel->messenger, channel->name->c_str(), channel);
}

/* ---- Calls, responses and values ------------------------------------------------------------- */

static void fl_method_call_init(FlMethodCall*) {}
static void fl_method_call_class_init(FlMethodCallClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = [](GObject* object) {
    g_clear_object(&FL_METHOD_CALL(object)->response);
    G_OBJECT_CLASS(fl_method_call_parent_class)->finalize(object);
  };
}

const gchar* fl_method_call_get_name(FlMethodCall* method_call) {
  g_return_val_if_fail(FL_IS_METHOD_CALL(method_call), nullptr);
  return method_call->name;
}

gboolean fl_method_call_respond(FlMethodCall* method_call, FlMethodResponse* response,
                                GError** error) {
  g_return_val_if_fail(FL_IS_METHOD_CALL(method_call), FALSE);
  g_return_val_if_fail(FL_IS_METHOD_RESPONSE(response), FALSE);
  ++method_call->responds;
  method_call->asked_for_error = error != nullptr;
  if (method_call->answer_is_lost) {
    g_set_error_literal(error, g_quark_from_static_string("embedding"), 1, "the engine is gone");
    return FALSE;
  }
  g_set_object(&method_call->response, response);
  return TRUE;
}

static void fl_method_response_class_init(FlMethodResponseClass*) {}
static void fl_method_response_init(FlMethodResponse*) {}
static void fl_method_success_response_init(FlMethodSuccessResponse*) {}
static void fl_method_success_response_class_init(FlMethodSuccessResponseClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = [](GObject* object) {
    fl_value_unref(FL_METHOD_SUCCESS_RESPONSE(object)->result);
    G_OBJECT_CLASS(fl_method_success_response_parent_class)->finalize(object);
  };
}
static void fl_method_not_implemented_response_class_init(FlMethodNotImplementedResponseClass*) {}
static void fl_method_not_implemented_response_init(FlMethodNotImplementedResponse*) {}

FlMethodSuccessResponse* fl_method_success_response_new(FlValue* result) {
  FlMethodSuccessResponse* response =
      FL_METHOD_SUCCESS_RESPONSE(g_object_new(fl_method_success_response_get_type(), nullptr));
  ++result->references;
  response->result = result;
  return response;
}

FlMethodNotImplementedResponse* fl_method_not_implemented_response_new() {
  return FL_METHOD_NOT_IMPLEMENTED_RESPONSE(
      g_object_new(fl_method_not_implemented_response_get_type(), nullptr));
}

FlValue* fl_value_new_string(const gchar* value) { return new FlValue{1, value}; }

void fl_value_unref(FlValue* value) {
  if (--value->references == 0) {
    delete value;
  }
}

/* ---- What a test does ------------------------------------------------------------------------ */

namespace almara::test {

FlPluginRegistry* NewApplication() {
  return FL_PLUGIN_REGISTRY(g_object_new(application_get_type(), nullptr));
}

FlPluginRegistrar* NewRegistrarWithoutMessenger() {
  return FL_PLUGIN_REGISTRAR(g_object_new(registrar_get_type(), nullptr));
}

OpenChannel ChannelOf(FlPluginRegistry* application, const char* name) {
  const Channels& channels = *STANDIN_APPLICATION(application)->channels;
  const auto found = channels.find(name);
  if (found == channels.end()) {
    return {false, nullptr, nullptr};
  }
  const FlMethodChannel* channel = found->second;
  return {FL_IS_STANDARD_METHOD_CODEC(channel->codec) != FALSE, channel->handler,
          static_cast<GObject*>(channel->user_data)};
}

std::size_t CountChannels(FlPluginRegistry* application) {
  return STANDIN_APPLICATION(application)->channels->size();
}

Reply CallMethod(FlPluginRegistry* application, const char* channel, const char* method,
                 bool answerIsLost) {
  Reply reply{Reply::kNone, "", 0, false};
  const OpenChannel open = ChannelOf(application, channel);
  if (open.handler == nullptr) {
    return reply;
  }
  FlMethodCall* call = FL_METHOD_CALL(g_object_new(fl_method_call_get_type(), nullptr));
  call->name = method;
  call->answer_is_lost = answerIsLost;
  open.handler(STANDIN_APPLICATION(application)->channels->at(channel), call, open.userData);
  if (FL_IS_METHOD_SUCCESS_RESPONSE(call->response)) {
    reply.kind = Reply::kSuccess;
    reply.text = FL_METHOD_SUCCESS_RESPONSE(call->response)->result->text;
  } else if (FL_IS_METHOD_NOT_IMPLEMENTED_RESPONSE(call->response)) {
    reply.kind = Reply::kNotImplemented;
  }
  reply.responds = call->responds;
  reply.askedForError = call->asked_for_error;
  g_object_unref(call);
  return reply;
}

}  // namespace almara::test
