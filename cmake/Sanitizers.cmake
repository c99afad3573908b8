# The sanitize preset: every target of the project runs under the address and undefined-behaviour sanitizers.
if(KAV_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# The fuzz preset: the same, with the fuzzer's probes in all code.
option(KAV_FUZZ "Build the libFuzzer targets (needs clang)" OFF)
if(KAV_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "KAV_FUZZ needs clang: configure with -DCMAKE_CXX_COMPILER=clang++")
    endif()
    add_compile_options(-O1 -g -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()
