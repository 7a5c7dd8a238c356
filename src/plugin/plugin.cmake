# Adds the plugin object to the library where there is an embedding to compile it against: the
# target `flutter` of an application's build, or the folder ALMARA_FLUTTER_DIR, which holds
# flutter_linux/flutter_linux.h and libflutter_linux_gtk.so. Without either the library is the
# engine alone.
set(ALMARA_FLUTTER_DIR "" CACHE PATH "Folder of the Flutter embedding to build the plugin against")

if(TARGET flutter)
  set(embedding flutter)
elseif(ALMARA_FLUTTER_DIR)
  find_path(ALMARA_FLUTTER_INCLUDE_DIR flutter_linux/flutter_linux.h
    HINTS ${ALMARA_FLUTTER_DIR} NO_DEFAULT_PATH)
  find_library(ALMARA_FLUTTER_LIBRARY flutter_linux_gtk
    HINTS ${ALMARA_FLUTTER_DIR} NO_DEFAULT_PATH)
  if(NOT ALMARA_FLUTTER_INCLUDE_DIR OR NOT ALMARA_FLUTTER_LIBRARY)
    message(FATAL_ERROR "ALMARA_FLUTTER_DIR: ${ALMARA_FLUTTER_DIR} does not hold both "
      "flutter_linux/flutter_linux.h and libflutter_linux_gtk.so")
  endif()
  add_library(almara_embedding INTERFACE)
  target_link_libraries(almara_embedding INTERFACE ${ALMARA_FLUTTER_LIBRARY})
  # The embedding's header names GTK's, the plugin nothing of it.
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(ALMARA_GTK gtk+-3.0)
  if(NOT ALMARA_GTK_FOUND AND EXISTS "${ALMARA_FLUTTER_INCLUDE_DIR}/flutter_linux/fl_view.h")
    message(FATAL_ERROR "ALMARA_FLUTTER_DIR: the embedding's headers need the development files of "
      "GTK 3, which pkg-config does not find (Debian: libgtk-3-dev)")
  endif()
  target_include_directories(almara_embedding SYSTEM INTERFACE
    ${ALMARA_FLUTTER_INCLUDE_DIR} ${ALMARA_GTK_INCLUDE_DIRS})
  set(embedding almara_embedding)
else()
  return()
endif()

find_package(PkgConfig REQUIRED)
pkg_check_modules(ALMARA_GOBJECT REQUIRED IMPORTED_TARGET gobject-2.0)

add_library(almara_plugin_objects OBJECT ${ALMARA_PLUGIN_SOURCES})
almara_target(almara_plugin_objects)
set_target_properties(almara_plugin_objects PROPERTIES
  POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
target_include_directories(almara_plugin_objects PRIVATE ${PROJECT_SOURCE_DIR}/include)
target_link_libraries(almara_plugin_objects PUBLIC ${embedding} PkgConfig::ALMARA_GOBJECT)
target_link_libraries(almara PRIVATE almara_plugin_objects)
