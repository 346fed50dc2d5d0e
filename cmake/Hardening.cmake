# Debian's hardening options: optimised programs check the bounds of buffers in C library calls and their own
# stack, and keep their function tables read-only.

include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

foreach(option -fstack-protector-strong -fstack-clash-protection -fcf-protection)
    string(MAKE_C_IDENTIFIER "VANTRELL_HAS${option}" known)
    check_cxx_compiler_flag(${option} ${known})
    if(${known})
        target_compile_options(vantrell_common INTERFACE $<$<CONFIG:Release>:${option}>)
    endif()
endforeach()
target_compile_options(vantrell_common INTERFACE $<$<CONFIG:Release>:-U_FORTIFY_SOURCE> $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)

check_linker_flag(CXX -Wl,-z,relro,-z,now VANTRELL_HAS_RELRO)
if(VANTRELL_HAS_RELRO)
    target_link_options(vantrell_common INTERFACE $<$<CONFIG:Release>:-Wl,-z,relro,-z,now>)
endif()
