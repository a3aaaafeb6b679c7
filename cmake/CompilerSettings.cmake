# SPDX-License-Identifier: GPL-3.0-or-later
# Warning and sanitizer flags, attached per target through interface libraries
# so that third-party code (moc output, GoogleTest macros) is not held to them.

add_library(lettriner_warnings INTERFACE)
target_compile_options(lettriner_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-qual -Wimplicit-fallthrough -Wmissing-declarations)
if(LETTRINER_WARNINGS_AS_ERRORS)
    target_compile_options(lettriner_warnings INTERFACE -Werror)
endif()

if(LETTRINER_SANITIZERS)
    add_compile_options(-fsanitize=${LETTRINER_SANITIZERS} -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${LETTRINER_SANITIZERS})
endif()

if(LETTRINER_BUILD_FUZZERS)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "The fuzz targets need clang: configure with the preset 'fuzz'")
    endif()
    # Coverage instrumentation for everything the fuzz targets link.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
