# The weather widget's place lists, built from the gazetteer that Debian's libgeonames0 carries. To be
# included where VARNEL_ASSETS is gathered; the files join it.
find_file(VARNEL_GAZETTEER libgeonames.so.0 REQUIRED NO_CMAKE_FIND_ROOT_PATH
          PATHS /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu /usr/lib)
set(place_script ${PROJECT_SOURCE_DIR}/tools/assets/build_places.py)
set(place_files countries.txt states.txt international.txt ustates.txt places-coords.txt)
list(TRANSFORM place_files PREPEND ${VARNEL_ASSETS_DIR}/)

add_custom_command(
  OUTPUT ${place_files}
  COMMAND ${VARNEL_PYTHON} ${place_script} ${VARNEL_GAZETTEER} ${VARNEL_ASSETS_DIR}
  DEPENDS ${place_script} ${PROJECT_SOURCE_DIR}/tools/assets/place_names.tsv ${VARNEL_GAZETTEER}
  COMMENT "Making the place lists"
  VERBATIM)
add_custom_target(places DEPENDS ${place_files})
list(APPEND VARNEL_ASSETS ${place_files})
