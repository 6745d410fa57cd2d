# The two sibling libraries, Talvo::CorvaneData and Talvo::HighLevelOperations, have the domain classes that the
# converters fill and read. They are either the stand-ins in Domain/, which become part of this library, or with
# TALVO_EXTERNAL_SIBLINGS libraries with their own CMake packages.
#
# TimePoints is part of this library in both cases, because this library exports its classes. The siblings hold time
# codes by value, so they are compiled with the headers of TimePoints but do not install them, and they hold a private
# copy of the code that they call.
option(TALVO_EXTERNAL_SIBLINGS "Build against external sibling libraries instead of the stand-ins in Domain/" OFF)

if(TALVO_EXTERNAL_SIBLINGS)
    find_package(TalvoCorvaneData CONFIG REQUIRED GLOBAL)
    find_package(TalvoHighLevelOperations CONFIG REQUIRED GLOBAL)
    set(siblingScope PUBLIC) # users of the converters need their headers and code

    # The include folder has no Domain/, so a header that a sibling lacks is an error and not silently the stand-in's.
    set(TALVO_INCLUDE_ROOT ${PROJECT_BINARY_DIR}/include)
    file(MAKE_DIRECTORY ${TALVO_INCLUDE_ROOT})
    foreach(folder Common TimePoints Thrift records tools tests benchmarks fuzz)
        file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${TALVO_INCLUDE_ROOT}/${folder} SYMBOLIC)
    endforeach()
else()
    set(siblingScope PRIVATE)
    set(TALVO_INCLUDE_ROOT ${PROJECT_SOURCE_DIR})
endif()
