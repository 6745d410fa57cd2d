# Options that make faults harder to exploit, for optimised builds without sanitizers, which detect more.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)

option(TALVO_HARDENING "Make faults harder to exploit" ON)

check_pie_supported()
if(TALVO_HARDENING AND CMAKE_BUILD_TYPE STREQUAL Release AND NOT CMAKE_CXX_FLAGS MATCHES -fsanitize)
    foreach(option -fstack-protector-strong -fstack-clash-protection -fcf-protection)
        string(MAKE_C_IDENTIFIER "TALVO_HAS${option}" has)
        check_cxx_compiler_flag(${option} ${has})
        if(${has})
            add_compile_options(${option})
        endif()
    endforeach()
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    add_link_options(-Wl,-z,relro,-z,now)
endif()
