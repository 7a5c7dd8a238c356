// SPDX-License-Identifier: MIT
#include "generated_plugin_registrant.h"

#include <almara/almara_plugin.h>

void fl_register_plugins(FlPluginRegistry* registry) {
  g_autoptr(FlPluginRegistrar) almara_registrar =
      fl_plugin_registry_get_registrar_for_plugin(registry, "AlmaraPlugin");
  almara_plugin_register_with_registrar(almara_registrar);
}
