# The JSON reader of Debian's nlohmann-json3-dev is made of headers only. They are linked into a
# folder of their own, because the cross compiler must not see the rest of the system's headers.
set(json_headers ${PROJECT_BINARY_DIR}/json_headers)
file(MAKE_DIRECTORY ${json_headers})
file(CREATE_LINK /usr/include/nlohmann ${json_headers}/nlohmann SYMBOLIC)
add_library(varnel_json INTERFACE)
target_include_directories(varnel_json SYSTEM INTERFACE ${json_headers})
target_compile_definitions(varnel_json INTERFACE JSON_NO_IO JSON_USE_IMPLICIT_CONVERSIONS=0)
