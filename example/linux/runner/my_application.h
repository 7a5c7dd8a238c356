// SPDX-License-Identifier: MIT
#ifndef FLUTTER_MY_APPLICATION_H_
#define FLUTTER_MY_APPLICATION_H_

#include <gtk/gtk.h>

/** A GTK application with one window that the embedding draws in. */
G_DECLARE_FINAL_TYPE(MyApplication, my_application, MY, APPLICATION, GtkApplication)

/** The application; the caller owns the reference. */
MyApplication* my_application_new();

#endif  // FLUTTER_MY_APPLICATION_H_
