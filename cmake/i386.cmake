# The 32-bit build: the machine's own gcc and g++ with -m32, and the libraries that scripts/i386-sysroot unpacks.
# Usage: cmake --toolchain cmake/i386.cmake [-D DST_I386_SYSROOT=DIR] ...
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)

if(NOT DST_I386_SYSROOT)
    set(DST_I386_SYSROOT "${CMAKE_CURRENT_LIST_DIR}/../build/i386-sysroot")
endif()
get_filename_component(DST_I386_SYSROOT "${DST_I386_SYSROOT}" ABSOLUTE)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES DST_I386_SYSROOT)
set(dst_i386_lib "${DST_I386_SYSROOT}/usr/lib/i386-linux-gnu")
if(NOT EXISTS "${dst_i386_lib}/libxml2.so")
    message(FATAL_ERROR "No 32-bit libraries in ${DST_I386_SYSROOT}: run scripts/i386-sysroot")
endif()

# Part of the compiler's name, so that flags given by the caller cannot displace it.
set(CMAKE_C_COMPILER gcc -m32)
set(CMAKE_CXX_COMPILER g++ -m32)
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)

# Libraries, headers and packages come from the unpacked tree or a prefix the caller names, never from the 64-bit system.
set(CMAKE_FIND_ROOT_PATH "${DST_I386_SYSROOT}" ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_PATH} "")
set(ENV{PKG_CONFIG_LIBDIR} "${dst_i386_lib}/pkgconfig:${DST_I386_SYSROOT}/usr/share/pkgconfig")
set(ENV{PKG_CONFIG_SYSROOT_DIR} "${DST_I386_SYSROOT}")

# Programs run from the build tree. The old tag, since the new one does not reach what libxml2 itself needs.
set(CMAKE_BUILD_RPATH "${dst_i386_lib}")
add_link_options(-Wl,--disable-new-dtags "-Wl,-rpath-link,${dst_i386_lib}")
