/* SPDX-License-Identifier: MIT */
/** @file
 * The plugin object of the almara library: what a Flutter application for the Linux desktop
 * registers. It answers the method "getPlatformVersion" on the method channel "almara" with
 * "Linux " and the kernel's version string, and any other method with not implemented.
 *
 * It has no connection to the calendar engine. The engine's functions are in <almara/almara.h> and
 * are exported by the same library, libalmara_plugin.so in an application's bundle.
 *
 * The two functions exist only in a library that was built with the embedding at hand.
 */
#ifndef ALMARA_ALMARA_PLUGIN_H_
#define ALMARA_ALMARA_PLUGIN_H_

#include <flutter_linux/flutter_linux.h>
#include <glib-object.h>

#if defined(__GNUC__)
#define ALMARA_PLUGIN_EXPORT __attribute__((visibility("default")))
#else
#define ALMARA_PLUGIN_EXPORT
#endif

G_BEGIN_DECLS

/** An instance of the type "AlmaraPlugin": a GObject without fields of its own. */
typedef struct AlmaraPlugin AlmaraPlugin;

/** The class of the type "AlmaraPlugin": a GObjectClass without fields of its own. */
typedef struct AlmaraPluginClass AlmaraPluginClass;

/**
 * The type id of "AlmaraPlugin", a direct subclass of GObject. The first call registers the type.
 * May be called from any thread.
 */
ALMARA_PLUGIN_EXPORT GType almara_plugin_get_type(void);

/**
 * Creates the plugin and its method channel on the registrar's messenger. The channel's handler
 * keeps the plugin alive, and nothing else does: it is freed when the handler is dropped.
 *
 * An application's generated registrant calls it once, on the thread of the window. Another call
 * creates another plugin and channel of the same name.
 *
 * @param registrar the caller's; it is not kept. If it is NULL or has no messenger, GLib reports
 *     it once and nothing is created.
 */
ALMARA_PLUGIN_EXPORT void almara_plugin_register_with_registrar(FlPluginRegistrar* registrar);

G_END_DECLS

#endif /* ALMARA_ALMARA_PLUGIN_H_ */
