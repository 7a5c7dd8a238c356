// SPDX-License-Identifier: MIT
#include "flutter/generated_plugin_registrant.h"

#include <almara/almara_plugin.h>

void fl_register_plugins(FlPluginRegistrar* registrar) {
  almara_plugin_register_with_registrar(registrar);
}
