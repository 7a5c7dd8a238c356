// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_GENERATED_PLUGIN_REGISTRANT_H_
#define ALMARA_TESTS_GENERATED_PLUGIN_REGISTRANT_H_

#include <flutter_linux/flutter_linux.h>

void fl_register_plugins(FlPluginRegistrar* registrar);

#endif  // ALMARA_TESTS_GENERATED_PLUGIN_REGISTRANT_H_
