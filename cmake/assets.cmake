# Files that the program embeds, made by the converters in tools/assets from packaged data and our own
# artwork. They are in VARNEL_ASSETS_DIR; the target `assets` makes them all.
set(VARNEL_ASSETS_DIR ${CMAKE_BINARY_DIR}/assets)
file(MAKE_DIRECTORY ${VARNEL_ASSETS_DIR})

# The distribution's own Python, because the modules that the converters use are its packages.
set(VARNEL_PYTHON /usr/bin/python3)

# varnel_assets(<converter> MAKES <name>... [FROM <input>...] [READS <file>...])
# The converter is called with its inputs and then the file that it makes, or, when it makes several,
# the folder for them. READS are files that it finds by itself. Paths are relative to the project.
function(varnel_assets converter)
  cmake_parse_arguments(PARSE_ARGV 1 asset "" "" "MAKES;FROM;READS")
  set(script tools/assets/${converter})
  foreach(path IN LISTS script asset_FROM asset_READS)
    cmake_path(ABSOLUTE_PATH path BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
    list(APPEND needed ${path})
  endforeach()
  list(LENGTH asset_FROM inputs)
  math(EXPR command_parts "1 + ${inputs}")
  list(SUBLIST needed 0 ${command_parts} command)
  list(TRANSFORM asset_MAKES PREPEND ${VARNEL_ASSETS_DIR}/)
  list(LENGTH asset_MAKES outputs)
  if(outputs EQUAL 1)
    set(target ${asset_MAKES})
  else()
    set(target ${VARNEL_ASSETS_DIR})
  endif()
  add_custom_command(
    OUTPUT ${asset_MAKES}
    COMMAND ${VARNEL_PYTHON} ${command} ${target}
    DEPENDS ${needed}
    COMMENT "Making assets with ${converter}"
    VERBATIM)
  set(VARNEL_ASSETS ${VARNEL_ASSETS} ${asset_MAKES} PARENT_SCOPE)
endfunction()

set(VARNEL_ASSETS)
varnel_assets(build_iconfont.py MAKES Icon-works.ttf
              FROM node_modules/@iconify-json/fluent/icons.json tools/assets/icons_font.tsv)
varnel_assets(build_ico.py MAKES app.ico FROM resources/app-small.svg resources/app.svg)
varnel_assets(build_bell.py MAKES bell.wav)
varnel_assets(build_places.py
              MAKES countries.txt states.txt international.txt ustates.txt places-coords.txt
              FROM /usr/lib/x86_64-linux-gnu/libgeonames.so.0 READS tools/assets/place_names.tsv)
varnel_assets(build_words.py MAKES words.bin
              FROM /usr/share/dict/american-english-large /usr/share/dict/british-english-large)
varnel_assets(build_pictures.py MAKES pictures.bin
              FROM node_modules/@iconify-json/fluent-emoji-flat/icons.json
                   tools/assets/calendar_pictures.tsv
              READS resources/pictures/calculator.svg resources/pictures/fog.svg
                    resources/pictures/presentation.svg resources/pictures/tasks.svg)
varnel_assets(build_notices.py MAKES notices.txt
              FROM THIRD-PARTY.md /usr/share/doc/wamerican-large/copyright
                   /usr/share/doc/nlohmann-json3-dev/copyright
                   /usr/share/doc/gcc-mingw-w64-base/copyright
                   /usr/share/doc/mingw-w64-x86-64-dev/copyright)

add_custom_target(assets DEPENDS ${VARNEL_ASSETS})
