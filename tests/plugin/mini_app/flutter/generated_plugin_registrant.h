// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_GENERATED_PLUGIN_REGISTRANT_H_
#define ALMARA_TESTS_GENERATED_PLUGIN_REGISTRANT_H_

#include <flutter_linux/flutter_linux.h>

// Registers Flutter plugins.
void fl_register_plugins(FlPluginRegistry* registry);

#endif  // ALMARA_TESTS_GENERATED_PLUGIN_REGISTRANT_H_
