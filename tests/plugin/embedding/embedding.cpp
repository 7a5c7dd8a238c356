// SPDX-License-Identifier: MIT
#include <atomic>
#include <map>

#include "embedding_control.h"

namespace {

// Counts the objects of one kind through their initialisers and finalisers.
template <typename Kind>
struct Live {
  static std::atomic<int> count;

  static void Finalize(GObject* object) {
    --count;
    // The class of the parent type, whose finaliser frees the instance.
    static_cast<GObjectClass*>(g_type_class_peek(G_TYPE_OBJECT))->finalize(object);
  }
};

template <typename Kind>
std::atomic<int> Live<Kind>::count{0};

std::atomic<int> live_values{0};

using Channels = std::map<std::string, FlMethodChannel*>;

void DropHandler(FlMethodChannel* channel);

}  // namespace

struct _FlValue {
  std::atomic<int> references;
  std::string text;
};

struct _FlBinaryMessenger {
  GObject parent_instance;
  Channels* channels;
};

struct _FlPluginRegistrar {
  GObject parent_instance;
  FlBinaryMessenger* messenger;
};

struct _FlStandardMethodCodec {
  FlMethodCodec parent_instance;
};

struct _FlMethodChannel {
  GObject parent_instance;
  FlMethodCodec* codec;
  FlMethodChannelMethodCallHandler handler;
  gpointer user_data;
  GDestroyNotify destroy_notify;
};

struct _FlMethodCall {
  GObject parent_instance;
  gchar* name;
  FlValue* arguments;
  FlMethodResponse* response;
  embedding::Delivery delivery;
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

G_DEFINE_TYPE(FlBinaryMessenger, fl_binary_messenger, G_TYPE_OBJECT)
G_DEFINE_TYPE(FlPluginRegistrar, fl_plugin_registrar, G_TYPE_OBJECT)
G_DEFINE_ABSTRACT_TYPE(FlMethodCodec, fl_method_codec, G_TYPE_OBJECT)
G_DEFINE_TYPE(FlStandardMethodCodec, fl_standard_method_codec, fl_method_codec_get_type())
G_DEFINE_TYPE(FlMethodChannel, fl_method_channel, G_TYPE_OBJECT)
G_DEFINE_TYPE(FlMethodCall, fl_method_call, G_TYPE_OBJECT)
G_DEFINE_ABSTRACT_TYPE(FlMethodResponse, fl_method_response, G_TYPE_OBJECT)
G_DEFINE_TYPE(FlMethodSuccessResponse, fl_method_success_response, fl_method_response_get_type())
G_DEFINE_TYPE(FlMethodNotImplementedResponse, fl_method_not_implemented_response,
              fl_method_response_get_type())

/* ---- Messenger and registrar ----------------------------------------------------------------- */

namespace {

void CloseChannel(FlMethodChannel* channel) {
  DropHandler(channel);
  g_object_unref(channel);
}

void FinalizeMessenger(GObject* object) {
  Channels* channels = FL_BINARY_MESSENGER(object)->channels;
  for (const auto& [name, channel] : *channels) CloseChannel(channel);
  delete channels;
  Live<FlBinaryMessenger>::Finalize(object);
}

void FinalizeRegistrar(GObject* object) {
  g_object_unref(FL_PLUGIN_REGISTRAR(object)->messenger);
  Live<FlPluginRegistrar>::Finalize(object);
}

}  // namespace

static void fl_binary_messenger_class_init(FlBinaryMessengerClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = FinalizeMessenger;
}

static void fl_binary_messenger_init(FlBinaryMessenger* self) {
  ++Live<FlBinaryMessenger>::count;
  self->channels = new Channels;
}

static void fl_plugin_registrar_class_init(FlPluginRegistrarClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = FinalizeRegistrar;
}

static void fl_plugin_registrar_init(FlPluginRegistrar* self) {
  ++Live<FlPluginRegistrar>::count;
  self->messenger = FL_BINARY_MESSENGER(g_object_new(fl_binary_messenger_get_type(), nullptr));
}

FlBinaryMessenger* fl_plugin_registrar_get_messenger(FlPluginRegistrar* registrar) {
  g_return_val_if_fail(FL_IS_PLUGIN_REGISTRAR(registrar), nullptr);
  return registrar->messenger;
}

/* ---- Codec and channel ----------------------------------------------------------------------- */

static void fl_method_codec_class_init(FlMethodCodecClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = Live<FlMethodCodec>::Finalize;
}

static void fl_method_codec_init(FlMethodCodec*) { ++Live<FlMethodCodec>::count; }

static void fl_standard_method_codec_class_init(FlStandardMethodCodecClass*) {}

static void fl_standard_method_codec_init(FlStandardMethodCodec*) {}

FlStandardMethodCodec* fl_standard_method_codec_new() {
  return FL_STANDARD_METHOD_CODEC(g_object_new(fl_standard_method_codec_get_type(), nullptr));
}

namespace {

void DropHandler(FlMethodChannel* channel) {
  const GDestroyNotify destroy_notify = channel->destroy_notify;
  channel->handler = nullptr;
  channel->destroy_notify = nullptr;
  if (destroy_notify != nullptr) destroy_notify(channel->user_data);
}

void FinalizeChannel(GObject* object) {
  FlMethodChannel* channel = FL_METHOD_CHANNEL(object);
  DropHandler(channel);
  g_object_unref(channel->codec);
  Live<FlMethodChannel>::Finalize(object);
}

}  // namespace

static void fl_method_channel_class_init(FlMethodChannelClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = FinalizeChannel;
}

static void fl_method_channel_init(FlMethodChannel*) { ++Live<FlMethodChannel>::count; }

FlMethodChannel* fl_method_channel_new(FlBinaryMessenger* messenger, const gchar* name,
                                       FlMethodCodec* codec) {
  g_return_val_if_fail(FL_IS_BINARY_MESSENGER(messenger), nullptr);
  g_return_val_if_fail(name != nullptr, nullptr);
  g_return_val_if_fail(FL_IS_METHOD_CODEC(codec), nullptr);
  FlMethodChannel* channel = FL_METHOD_CHANNEL(g_object_new(fl_method_channel_get_type(), nullptr));
  channel->codec = FL_METHOD_CODEC(g_object_ref(codec));
  FlMethodChannel*& open = (*messenger->channels)[name];
  if (open != nullptr) CloseChannel(open);
  open = FL_METHOD_CHANNEL(g_object_ref(channel));
  return channel;
}

void fl_method_channel_set_method_call_handler(FlMethodChannel* channel,
                                               FlMethodChannelMethodCallHandler handler,
                                               gpointer user_data, GDestroyNotify destroy_notify) {
  g_return_if_fail(FL_IS_METHOD_CHANNEL(channel));
  DropHandler(channel);
  channel->handler = handler;
  channel->user_data = user_data;
  channel->destroy_notify = destroy_notify;
}

/* ---- Calls ----------------------------------------------------------------------------------- */

namespace {

void FinalizeCall(GObject* object) {
  FlMethodCall* call = FL_METHOD_CALL(object);
  g_free(call->name);
  if (call->arguments != nullptr) fl_value_unref(call->arguments);
  g_clear_object(&call->response);
  Live<FlMethodCall>::Finalize(object);
}

}  // namespace

static void fl_method_call_class_init(FlMethodCallClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = FinalizeCall;
}

static void fl_method_call_init(FlMethodCall*) { ++Live<FlMethodCall>::count; }

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
  if (method_call->delivery == embedding::Delivery::kFails) {
    g_set_error_literal(error, g_quark_from_static_string("embedding"), 1, "the engine is gone");
    return FALSE;
  }
  g_set_object(&method_call->response, response);
  return TRUE;
}

/* ---- Responses and values -------------------------------------------------------------------- */

namespace {

void FinalizeSuccess(GObject* object) {
  fl_value_unref(FL_METHOD_SUCCESS_RESPONSE(object)->result);
  Live<FlMethodResponse>::Finalize(object);
}

}  // namespace

static void fl_method_response_class_init(FlMethodResponseClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = Live<FlMethodResponse>::Finalize;
}

static void fl_method_response_init(FlMethodResponse*) { ++Live<FlMethodResponse>::count; }

static void fl_method_success_response_class_init(FlMethodSuccessResponseClass* klass) {
  G_OBJECT_CLASS(klass)->finalize = FinalizeSuccess;
}

static void fl_method_success_response_init(FlMethodSuccessResponse*) {}

FlMethodSuccessResponse* fl_method_success_response_new(FlValue* result) {
  FlMethodSuccessResponse* response =
      FL_METHOD_SUCCESS_RESPONSE(g_object_new(fl_method_success_response_get_type(), nullptr));
  ++result->references;
  response->result = result;
  return response;
}

static void fl_method_not_implemented_response_class_init(FlMethodNotImplementedResponseClass*) {}

static void fl_method_not_implemented_response_init(FlMethodNotImplementedResponse*) {}

FlMethodNotImplementedResponse* fl_method_not_implemented_response_new() {
  return FL_METHOD_NOT_IMPLEMENTED_RESPONSE(
      g_object_new(fl_method_not_implemented_response_get_type(), nullptr));
}

FlValue* fl_value_new_string(const gchar* value) {
  ++live_values;
  return new FlValue{{1}, value};
}

void fl_value_unref(FlValue* value) {
  if (--value->references > 0) return;
  --live_values;
  delete value;
}

/* ---- Control --------------------------------------------------------------------------------- */

namespace embedding {

namespace {

void ReadResponse(FlMethodResponse* response, Reply* reply) {
  if (FL_IS_METHOD_SUCCESS_RESPONSE(response)) {
    reply->kind = ReplyKind::kSuccess;
    reply->text = FL_METHOD_SUCCESS_RESPONSE(response)->result->text;
  } else if (FL_IS_METHOD_NOT_IMPLEMENTED_RESPONSE(response)) {
    reply->kind = ReplyKind::kNotImplemented;
  }
}

Reply Call(FlPluginRegistrar* registrar, const char* channel_name, const char* method,
           FlValue* arguments, Delivery delivery) {
  Reply reply{ReplyKind::kNone, "", 0, false};
  const Channels& channels = *registrar->messenger->channels;
  const auto found = channels.find(channel_name);
  if (found == channels.end() || found->second->handler == nullptr) return reply;
  FlMethodChannel* channel = found->second;
  FlMethodCall* call = FL_METHOD_CALL(g_object_new(fl_method_call_get_type(), nullptr));
  call->name = g_strdup(method);
  call->delivery = delivery;
  if (arguments != nullptr) ++arguments->references;
  call->arguments = arguments;
  channel->handler(channel, call, channel->user_data);
  ReadResponse(call->response, &reply);
  reply.responds = call->responds;
  reply.asked_for_error = call->asked_for_error;
  g_object_unref(call);
  return reply;
}

}  // namespace

LiveObjects CountLive() {
  return {Live<FlPluginRegistrar>::count,
          Live<FlBinaryMessenger>::count,
          Live<FlMethodCodec>::count,
          Live<FlMethodChannel>::count,
          Live<FlMethodCall>::count,
          Live<FlMethodResponse>::count,
          live_values};
}

FlPluginRegistrar* NewRegistrar() {
  return FL_PLUGIN_REGISTRAR(g_object_new(fl_plugin_registrar_get_type(), nullptr));
}

std::vector<OpenChannel> OpenChannels(FlPluginRegistrar* registrar) {
  std::vector<OpenChannel> open;
  for (const auto& [name, channel] : *registrar->messenger->channels)
    open.push_back({name, FL_IS_STANDARD_METHOD_CODEC(channel->codec) != FALSE, channel->handler,
                    channel->user_data});
  return open;
}

Reply CallMethod(FlPluginRegistrar* registrar, const char* channel, const char* method,
                 Delivery delivery) {
  return Call(registrar, channel, method, nullptr, delivery);
}

Reply CallMethodWithArguments(FlPluginRegistrar* registrar, const char* channel, const char* method,
                              FlValue* arguments) {
  return Call(registrar, channel, method, arguments, Delivery::kSent);
}

int References(const FlValue* value) { return value->references; }

}  // namespace embedding
