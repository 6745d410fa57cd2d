# 32-bit code on a 64-bit machine: the run-time libraries come from packages that are unpacked into the build folder,
# never installed, since the 32-bit and 64-bit ones conflict.
set(i386Folder ${PROJECT_BINARY_DIR}/i386)
if(NOT EXISTS ${i386Folder}/usr/lib/i386-linux-gnu/libthrift.so)
    execute_process(COMMAND ${PROJECT_SOURCE_DIR}/scripts/fetch-i386 ${i386Folder} COMMAND_ERROR_IS_FATAL ANY)
endif()
list(PREPEND CMAKE_LIBRARY_PATH ${i386Folder}/usr/lib/i386-linux-gnu)

# The folder must also serve the libraries that those libraries need: RPATH is inherited, RUNPATH is not.
add_link_options(-Wl,--disable-new-dtags)
