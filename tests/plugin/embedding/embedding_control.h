// SPDX-License-Identifier: MIT
//
// What a test does with the stand-in embedding: be the application, make calls, count objects.
#ifndef ALMARA_TESTS_EMBEDDING_CONTROL_H_
#define ALMARA_TESTS_EMBEDDING_CONTROL_H_

#include <flutter_linux/flutter_linux.h>

#include <string>
#include <vector>

namespace embedding {

// Objects made by the embedding that have not been freed, channels and handlers included.
struct LiveObjects {
  int registrars;
  int messengers;
  int codecs;
  int channels;
  int calls;
  int responses;
  int values;
};

LiveObjects CountLive();

// The registrar, with a messenger of its own, that an application hands to one plugin. Freeing it
// closes its channels.
FlPluginRegistrar* NewRegistrar();

struct OpenChannel {
  std::string name;
  bool standard_codec;
  FlMethodChannelMethodCallHandler handler;
  gpointer user_data;
};

std::vector<OpenChannel> OpenChannels(FlPluginRegistrar* registrar);

// How sending a response ends.
enum class Delivery { kSent, kFails };

enum class ReplyKind { kNone, kSuccess, kNotImplemented };

struct Reply {
  ReplyKind kind;        // kNone if nothing could be sent, or nobody listens on the channel
  std::string text;      // of a success
  int responds;          // how often the handler tried to respond
  bool asked_for_error;  // whether it gave a place for the error
};

// Calls a method, without arguments, on a channel, as the application's Dart code does. The method
// may be null.
Reply CallMethod(FlPluginRegistrar* registrar, const char* channel, const char* method,
                 Delivery delivery = Delivery::kSent);

// The same with arguments, of which the call keeps a reference until it is freed.
Reply CallMethodWithArguments(FlPluginRegistrar* registrar, const char* channel, const char* method,
                              FlValue* arguments);

// References to a value.
int References(const FlValue* value);

}  // namespace embedding

#endif  // ALMARA_TESTS_EMBEDDING_CONTROL_H_
