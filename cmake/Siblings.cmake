# The two sibling libraries, whose domain classes the converters fill and read, are Talvo::CorvaneData and
# Talvo::HighLevelOperations: the stand-ins in Domain/, which become part of this library, or with TALVO_EXTERNAL_SIBLINGS
# libraries with CMake packages of their own.
#
# TimePoints stays here in both cases, since this library exports its classes. The siblings hold time codes by value, so they
# are compiled with the headers of TimePoints but install none, and what they call of its code they hold as a private copy.
option(TALVO_EXTERNAL_SIBLINGS "Build against sibling libraries from elsewhere, not against the stand-ins in Domain/" OFF)

if(TALVO_EXTERNAL_SIBLINGS)
    find_package(TalvoCorvaneData CONFIG REQUIRED GLOBAL)
    find_package(TalvoHighLevelOperations CONFIG REQUIRED GLOBAL)
    set(siblingScope PUBLIC) # whoever converts needs their headers and code

    # Includes start from a folder without Domain/: a header that a sibling lacks is an error, not silently the stand-in's.
    set(TALVO_INCLUDE_ROOT ${PROJECT_BINARY_DIR}/include)
    file(MAKE_DIRECTORY ${TALVO_INCLUDE_ROOT})
    foreach(folder Common TimePoints Thrift records tools tests benchmarks fuzz)
        file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${TALVO_INCLUDE_ROOT}/${folder} SYMBOLIC)
    endforeach()
else()
    set(siblingScope PRIVATE)
    set(TALVO_INCLUDE_ROOT ${PROJECT_SOURCE_DIR})
endif()
