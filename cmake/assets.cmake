# Files that the program embeds, made from packaged and own artwork by the converters in tools/assets.
# Each is in VARNEL_ASSETS_DIR; the target `assets` makes them all.
set(VARNEL_ASSETS_DIR ${CMAKE_BINARY_DIR}/assets)
file(MAKE_DIRECTORY ${VARNEL_ASSETS_DIR})

# The distribution's own Python, because the modules that the converters use are its packages.
set(VARNEL_PYTHON /usr/bin/python3)

# varnel_asset(<name> <converter> [<input>...]) makes <name> by
# `tools/assets/<converter> <input>... <name>`; inputs are relative to the project's folder.
function(varnel_asset name converter)
  set(script ${PROJECT_SOURCE_DIR}/tools/assets/${converter})
  set(output ${VARNEL_ASSETS_DIR}/${name})
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/ OUTPUT_VARIABLE inputs)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${VARNEL_PYTHON} ${script} ${inputs} ${output}
    DEPENDS ${script} ${inputs}
    COMMENT "Making ${name}"
    VERBATIM)
  set(VARNEL_ASSETS ${VARNEL_ASSETS} ${output} PARENT_SCOPE)
endfunction()

set(VARNEL_ASSETS)
varnel_asset(Icon-works.ttf build_iconfont.py node_modules/@iconify-json/fluent/icons.json
             tools/assets/icons_font.tsv)
varnel_asset(app.ico build_ico.py resources/app-small.svg resources/app.svg)
varnel_asset(bell.wav build_bell.py)

add_custom_target(assets DEPENDS ${VARNEL_ASSETS})
