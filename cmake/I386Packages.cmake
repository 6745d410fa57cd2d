# 32-bit code on a 64-bit machine: the run-time libraries come from packages that are unpacked into the build folder and
# not installed, because the 32-bit and 64-bit packages conflict.
set(i386Folder ${PROJECT_BINARY_DIR}/i386)
if(NOT EXISTS ${i386Folder}/usr/lib/i386-linux-gnu/libthrift.so)
    execute_process(COMMAND ${PROJECT_SOURCE_DIR}/scripts/fetch-i386 ${i386Folder} COMMAND_ERROR_IS_FATAL ANY)
endif()
list(PREPEND CMAKE_LIBRARY_PATH ${i386Folder}/usr/lib/i386-linux-gnu)

# RPATH, because it also applies to the dependencies of these libraries; RUNPATH does not.
add_link_options(-Wl,--disable-new-dtags)
