option(TALVO_LINK_TIME_OPTIMISATION "Inline between files when the library is linked (g++)" ON)
set(TALVO_LAYER_OPTIONS "" CACHE STRING "Further compile options of the layers of the library")
# The compiler spends nearly all its time on the headers that the files of a folder share.
option(TALVO_UNITY_LAYERS "Compile each folder of the library as one unit" OFF)

# talvo_add_layer(LAYER SOURCES... [LINK TARGETS...]): Talvo::LAYER, the object target of one folder of the library.
function(talvo_add_layer layer)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    set(name Talvo${layer})
    add_library(${name} OBJECT ${ARG_SOURCES})
    add_library(Talvo::${layer} ALIAS ${name})
    target_include_directories(${name} PUBLIC ${TALVO_INCLUDE_ROOT})
    target_compile_options(${name} PRIVATE ${TALVO_WARNINGS} ${TALVO_LAYER_OPTIONS})
    target_link_libraries(${name} PUBLIC ${ARG_LINK})
    set_target_properties(${name} PROPERTIES UNITY_BUILD ${TALVO_UNITY_LAYERS} UNITY_BUILD_BATCH_SIZE 0)
    # A conversion calls many small functions of other files (enumeration lookups, time codes). Inlining them at link
    # time saves a sixth of its time. Not with clang, which needs its own linker for this.
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        set_target_properties(${name} PROPERTIES INTERPROCEDURAL_OPTIMIZATION_RELEASE ${TALVO_LINK_TIME_OPTIMISATION})
    endif()
endfunction()

# talvo_reads_any_bytes(TARGET): for code that reads records from arbitrary bytes. Thrift's headers load the type byte
# of a field as an enumeration regardless of its number, and arbitrary bytes contain every number.
function(talvo_reads_any_bytes target)
    if(CMAKE_CXX_FLAGS MATCHES -fsanitize=.*undefined)
        target_compile_options(${target} PRIVATE -fno-sanitize=enum)
    endif()
endfunction()

# talvo_add_test(NAME SOURCES... [LINK TARGETS...]): a GoogleTest program, registered with CTest.
function(talvo_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${TALVO_INCLUDE_ROOT})
    target_compile_options(${name} PRIVATE ${TALVO_WARNINGS})
    target_link_libraries(${name} PRIVATE
        Talvo::CorvaneZelmarSerializationThrift Thrift::thrift GTest::gmock GTest::gtest_main ${ARG_LINK})
    add_test(NAME ${name} COMMAND ${name})
endfunction()
