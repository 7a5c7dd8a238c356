// SPDX-License-Identifier: MIT
//
// How a test plays the application around a plugin.
#ifndef ALMARA_TESTS_PLUGIN_EMBEDDING_APPLICATION_H_
#define ALMARA_TESTS_PLUGIN_EMBEDDING_APPLICATION_H_

#include <flutter_linux/flutter_linux.h>

#include <string>

namespace almara::test {

// An application, with a messenger of its own. Freeing it closes its channels.
FlPluginRegistry* NewApplication();

// A registrar whose application did not start: it has no messenger.
FlPluginRegistrar* NewRegistrarWithoutMessenger();

struct OpenChannel {
  bool isStandardCodec;
  FlMethodChannelMethodCallHandler handler;
  GObject* userData;
};

// The channel of a name; without a handler if nobody listens there.
OpenChannel ChannelOf(FlPluginRegistry* application, const char* name);

// How many channels are open.
std::size_t CountChannels(FlPluginRegistry* application);

struct Reply {
  enum Kind { kNone, kSuccess, kNotImplemented } kind;  // kNone if nobody listens, or it was lost
  std::string text;                                     // of a success
  int responds;                                         // how often the handler tried to respond
  bool askedForError;                                   // whether it gave a place for the error
};

// Calls a method as the application's Dart code does. Where the
// answer is lost the embedding says so to the handler.
Reply CallMethod(FlPluginRegistry* application, const char* channel, const char* method,
                 bool answerIsLost = false);

}  // namespace almara::test

#endif  // ALMARA_TESTS_PLUGIN_EMBEDDING_APPLICATION_H_
