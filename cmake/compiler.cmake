# Options that every target of ours is built with, carried by the interface library varnel_options.
add_library(varnel_options INTERFACE)
target_include_directories(varnel_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(varnel_options INTERFACE -Wall -Wextra -Wpedantic -Werror)

if(VARNEL_SANITIZE)
  target_compile_options(varnel_options INTERFACE -fsanitize=address,undefined
                         -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(varnel_options INTERFACE -fsanitize=address,undefined)
endif()

if(WIN32)
  target_compile_definitions(varnel_options INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                             STRICT _WIN32_WINNT=0x0A00 WINVER=0x0A00 NTDDI_VERSION=0x0A000007)
  target_compile_options(varnel_options INTERFACE -ffunction-sections -fdata-sections
                         -fstack-protector-strong -D_GLIBCXX_ASSERTIONS
                         $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
  target_link_options(varnel_options INTERFACE -static -fstack-protector-strong -Wl,--gc-sections
                      -Wl,--no-insert-timestamp -Wl,--dynamicbase -Wl,--high-entropy-va
                      -Wl,--nxcompat)
endif()
