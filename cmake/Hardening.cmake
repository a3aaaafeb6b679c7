# SPDX-License-Identifier: GPL-3.0-or-later
# Hardening for every target, as Debian builds its packages (dpkg-buildflags
# with hardening=+all): stack protector, fortified C library calls, relocations
# read-only and bound at start, position-independent executables.
# tests/check_hardening.sh checks the result on the built programs.

option(LETTRINER_HARDENING "Build with the hardening flags Debian packages get" ON)
if(NOT LETTRINER_HARDENING)
    return()
endif()

include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_compile_options(-fstack-protector-strong -Wformat -Werror=format-security)
add_link_options(LINKER:-z,relro LINKER:-z,now)

# The fortified calls need an optimising build (glibc warns otherwise, and -Og
# counts). Under the sanitizers they stay off: a fortified call goes to the C
# library's checked copy, past the sanitizer's own, more precise check.
string(TOUPPER "${CMAKE_BUILD_TYPE}" hardening_config)
set(hardening_flags " ${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${hardening_config}} ")
if(NOT LETTRINER_SANITIZERS AND hardening_flags MATCHES " -O([1-3gsz]|fast)? ")
    # Undefined first: some compilers define it already, and a redefinition warns.
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    set(LETTRINER_FORTIFIED ON)
else()
    set(LETTRINER_FORTIFIED OFF)
endif()
