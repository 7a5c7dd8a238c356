# The one list of the library's sources; every build of it uses it. An application's build, which
# includes it too, may run CMake 3.10.
set(ALMARA_ENGINE_SOURCES
  date/calendar_platform_api.cpp
  date/day_run.cpp
  date/decimal_text.cpp
  board/board_dump.cpp
  board/build_board.cpp
  board/calendar_config.cpp
  board/calendar_item.cpp
  board/calendar_logic_build.cpp
  board/calendar_week_number.cpp
  board/calendar_week_number_helpers.cpp
  board/cells.cpp
  board/date_list.cpp
  board/day_counts.cpp
  board/display_date_list.cpp
  board/focus_day.cpp
  board/standard_output.cpp
  board/visible_part.cpp
  board/week_spans.cpp
  lunar/calendar_lunar_converter.cpp
  lunar/calendar_lunar_solar_terms.cpp
  lunar/ecliptic_longitude.cpp
  lunar/historical_year.cpp
  lunar/julian_date.cpp
  lunar/longitude_search.cpp
  lunar/lunar_date.cpp
  lunar/lunar_memo.cpp
  lunar/lunar_quarter.cpp
  lunar/sekki_longitude.cpp
  lunar/sekki_lookup.cpp
  lunar/sekki_year.cpp
  festival/calendar_festival.cpp
  festival/calendar_festival_function.cpp
  festival/lunar_festival_rules.cpp
  festival/solar_festival_rules.cpp
  almanac/anniversary.cpp
  almanac/calendar.cpp
  almanac/certainty.cpp
  almanac/festival_of_date.cpp
  almanac/instant_record.cpp
  almanac/lunar_date.cpp
  almanac/lunar_month.cpp
  logic/annotation_lookups.cpp
  logic/calendar_logic.cpp
  api/almanac_exports.cpp
  api/annotation_exports.cpp
  api/bool_setters.cpp
  api/engine.cpp
  api/exports.cpp)
set(ALMARA_PLUGIN_SOURCES
  plugin/almara_plugin.cpp)

foreach(sources ALMARA_ENGINE_SOURCES ALMARA_PLUGIN_SOURCES)
  string(REGEX REPLACE "([^;]+)" "${CMAKE_CURRENT_LIST_DIR}/\\1" ${sources} "${${sources}}")
endforeach()
